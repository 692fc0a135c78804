// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/menu/FileMenu.h"

#include "presentation/menu/EditMenuModel.h"
#include "presentation/menu/FileMenuModel.h"
#include "store/RecordStore.h"
#include "ui/theme/Theme.h"
#include "unit/ui/WindowFixture.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class FileMenuTest : public WindowFixture
{
protected:
    FileMenuTest()
    {
        model.menuNeedsUpdate();
        (new QVBoxLayout(&anyWindow))->addWidget(button);
        anyWindow.show();
        anyWindow.activateWindow();
    }

    QAction *titled(const QString &title)
    {
        for (QAction *action : view.actions()) {
            if (action->text() == title) {
                return action;
            }
        }
        ADD_FAILURE() << "no item " << title.toStdString();
        return nullptr;
    }

    Theme theme;
    FileMenuModel model{{settings, devices, current, changer, helper, presence, timers}};
    RecordStore records{scheduler, machine.data.path()};
    EditMenuModel editModel{records};
    FileMenu view{model, editModel};
    QWidget anyWindow;
    QToolButton *button = view.makeButton(theme);
};

TEST_F(FileMenuTest, ItsItemsSayTheirKeys)
{
    EXPECT_EQ(titled(u"New Network Rule…"_s)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_N));
    EXPECT_EQ(
        titled(u"New Login Rule…"_s)->shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N));
    EXPECT_EQ(titled(u"Close Window"_s)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_W));
    for (const QAction *action : view.actions().mid(4)) {
        EXPECT_TRUE(action->shortcut().isEmpty()) << action->text().toStdString();
    }
}

TEST_F(FileMenuTest, AnItemWithoutAWindowSaysSo)
{
    EXPECT_FALSE(titled(u"New Network Rule…"_s)->isEnabled());
    EXPECT_FALSE(titled(u"New Network Rule…"_s)->toolTip().isEmpty());
    EXPECT_TRUE(view.toolTipsVisible());
}

TEST_F(FileMenuTest, ItsButtonIsNamedAndOpensIt)
{
    EXPECT_EQ(button->accessibleName(), u"File menu"_s);
    EXPECT_FALSE(button->toolTip().isEmpty());
    EXPECT_EQ(button->shortcut(), QKeySequence(Qt::Key_F10));
    int opened = 0;
    QObject::connect(&view, &QMenu::aboutToShow, [&] { ++opened; });
    QMetaObject::invokeMethod(&view, [this] { view.close(); }, Qt::QueuedConnection);
    button->click();
    EXPECT_EQ(opened, 1);
}

} // namespace
} // namespace quillon::test
