// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "vendors/VendorTaker.h"

#include <QObject>

namespace quillon {

class VendorList;

/// The vendor of the rule that is open in the editor. Main thread.
class RuleVendor : public QObject, public VendorTaker
{
    Q_OBJECT

public:
    explicit RuleVendor(VendorList &list);

    QString device() const override { return {}; }
    bool canChoose() const override { return m_canChoose; }
    QString whyNot() const override;
    void updateVendorTableSelectionWithRow(qsizetype row) override;

    /// Only random addresses have a vendor.
    void setCanChoose(bool canChoose);
    /// A form was filled: shows the name in the field, and selects it in the list, unfiltered; for
    /// no name "Random Address".
    void updateVendorSelection(const QString &name);

Q_SIGNALS:
    /// The text field is to show `text`.
    void vendorFieldUpdated(const QString &text);
    /// The list is to select `entry` alone and to show it.
    void vendorSelected(const QString &entry);

private:
    VendorList &m_list;
    QString m_name;
    bool m_canChoose = true;
};

} // namespace quillon
