// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/NotificationNames.h"
#include "ui/theme/Theme.h"
#include "ui/vendors/VendorChooser.h"
#include "ui/vendors/VendorTableView.h"
#include "unit/vendors/VendorFixture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillon::test {

using namespace Qt::StringLiterals;

/// The chooser in a window, above another field, with five manufacturers to choose from.
class VendorChooserFixture : public VendorFixture
{
protected:
    VendorChooserFixture()
    {
        token = notifications.addObserver(notifications::closeVendorViewPopover,
            [this](const auto &) { field.closeVendorViewPopover(); });
        theme.apply();
        storeDevice(device, {});
        select(device);
        offer(registryOf({{"00000A", "Appian"}, {"00000B", "Apricot"}, {"00000C", "apple"},
            {"00000D", "Zebra"}, {"00000E", "Mango"}}));
        choice.updateVendorField({});

        auto *column = new QVBoxLayout(&window);
        auto *chooser = new VendorChooser(field, theme);
        column->addWidget(chooser);
        column->addWidget(other);
        column->addStretch();
        window.resize(460, 600);
        window.show();
        QApplication::setActiveWindow(&window);
        text = window.findChild<QLineEdit *>(u"vendorTextfield"_s);
        toggle = window.findChild<QToolButton *>(u"vendorToggle"_s);
        text->setFocus();
    }
    ~VendorChooserFixture() override { notifications.removeObserver(token); }

    void offer(const QByteArray &vendors)
    {
        makeLive(vendors);
        loadList();
    }
    // Both until a list that they open is there.
    void press(QWidget &widget, int key, const QString &typed = {})
    {
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, typed);
        QCoreApplication::sendEvent(&widget, &down);
        scheduler.runPending();
    }
    void type(const QString &typed)
    {
        text->selectAll();
        for (const QChar character : typed) {
            press(*text, Qt::Key_unknown, QString(character));
        }
    }
    void click(QWidget &widget, const QPoint &place)
    {
        QMouseEvent down(QEvent::MouseButtonPress, place, widget.mapToGlobal(place), Qt::LeftButton,
            Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &down);
        QMouseEvent up(QEvent::MouseButtonRelease, place, widget.mapToGlobal(place), Qt::LeftButton,
            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &up);
        scheduler.runPending();
    }
    /// Made when it is shown for the first time.
    VendorTableView *table() const { return window.findChild<VendorTableView *>(); }
    bool isListShown() const { return table() != nullptr && table()->isVisible(); }
    QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; table() != nullptr && row < table()->model()->rowCount(); ++row) {
            rows << table()->model()->index(row, 0).data().toString();
        }
        return rows;
    }
    QString selected() const { return table()->currentIndex().data().toString(); }
    QString saved() const
    {
        return settings.getDictionary(keys::deviceDict)
            .value(device)
            .toMap()
            .value(record::vendor)
            .toString();
    }

    const QString device = u"enp1s0"_s;
    NotificationCenter::Token token = 0;
    Theme theme;
    QWidget window;
    QLineEdit *other = new QLineEdit;
    QLineEdit *text = nullptr;
    QToolButton *toggle = nullptr;
};

} // namespace quillon::test
