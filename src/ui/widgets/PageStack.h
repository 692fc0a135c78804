// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStackedWidget>

namespace quillon {

/// Pages of which one is shown. It takes the room that this one needs; the others, which may be
/// taller, do not count.
class PageStack : public QStackedWidget
{
    Q_OBJECT

public:
    explicit PageStack(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
};

} // namespace quillon
