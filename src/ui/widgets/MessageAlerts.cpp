// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/MessageAlerts.h"

#include "base/Localized.h"
#include "ui/widgets/PlainText.h"

#include <QApplication>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int sentenceWidth = 360;
constexpr int iconSize = 48;

void describe(QMessageBox &box, const QString &message, const QString &informativeText)
{
    box.setWindowTitle(u"Quillon"_s);
    // Before it is shown: a text that is HTML opens its pictures at once. The box's own format does
    // not hold for the informative text, whose label is made only when there is one.
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(u" "_s);
    for (QLabel *label : box.findChildren<QLabel *>()) {
        label->setTextFormat(Qt::PlainText);
    }
    box.setText(plainParagraphs(message));
    box.setInformativeText(plainParagraphs(informativeText));
    const QIcon icon(u":/icons/com.orvandel.Quillon4.svg"_s);
    box.setIconPixmap(icon.pixmap(QSize(iconSize, iconSize), box.devicePixelRatioF()));
}

/// Wide enough for a sentence, not for the shortest word alone. The box has its buttons by now.
void widen(QMessageBox &box)
{
    if (auto *const grid = qobject_cast<QGridLayout *>(box.layout())) {
        grid->addItem(
            new QSpacerItem(sentenceWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
}

} // namespace

int MessageAlerts::runModal(const Alert &alert)
{
    QMessageBox box(QApplication::activeWindow());
    describe(box, alert.message, alert.informativeText);
    QList<QPushButton *> buttons;
    for (const QString &title : alert.buttons) {
        // One role for all keeps them in the order given.
        buttons.append(box.addButton(title, QMessageBox::ActionRole));
    }
    if (buttons.isEmpty()) {
        buttons.append(box.addButton(localized("OK"), QMessageBox::ActionRole));
    }
    box.setDefaultButton(buttons.value(alert.defaultButton, buttons.last()));
    box.setEscapeButton(buttons.last());
    widen(box);
    box.exec();
    const auto chosen = buttons.indexOf(qobject_cast<QPushButton *>(box.clickedButton()));
    return static_cast<int>(chosen < 0 ? buttons.size() - 1 : chosen);
}

bool MessageAlerts::presentError(const Error &error)
{
    QMessageBox box(QApplication::activeWindow());
    describe(box, error.message, u"%1 (%2)"_s.arg(error.domain, QString::number(error.code)));
    box.addButton(localized("OK"), QMessageBox::AcceptRole);
    widen(box);
    box.exec();
    return false;
}

} // namespace quillon
