// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/AboutPreferencesView.h"

#include "base/Localized.h"
#include "presentation/preferences/AboutPreferencesViewController.h"
#include "presentation/preferences/PreferencesLine.h"
#include "ui/preferences/PaneLayout.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

AboutPreferencesView::AboutPreferencesView(
    AboutPreferencesViewController &controller, const Theme &theme)
    : m_controller(controller)
    , m_failure(new InlineLine(theme))
{
    QVBoxLayout *pane = makePaneColumn(*this);
    QVBoxLayout *program = addCard(*pane);
    auto *name = plainLabel(u"Quillon"_s);
    name->setProperty("look", u"head"_s);
    name->setFont(Theme::font(Theme::Type::Title));
    auto *version = plainLabel(plainLine(AboutPreferencesViewController::version()));
    version->setObjectName(u"aboutVersion"_s);
    auto *authors = plainLabel(localized("By the Quillon authors"));
    authors->setProperty("look", u"caption"_s);
    auto *license = plainLabel(AboutPreferencesViewController::license());
    license->setObjectName(u"aboutLicense"_s);
    license->setWordWrap(true);
    for (QLabel *label : {name, version, authors, license}) {
        program->addWidget(label);
    }
    QVBoxLayout *links = addCard(*pane, localized("More"));
    for (qsizetype index = 0; index < m_controller.links().size(); ++index) {
        const auto &link = m_controller.links().at(index);
        auto *button = new QPushButton(link.title);
        button->setAccessibleName(link.title);
        button->setToolTip(plainToolTip(link.url.toDisplayString()));
        button->setAutoDefault(true);
        connect(
            button, &QPushButton::clicked, this, [this, index] { m_controller.openLink(index); });
        links->addWidget(button, 0, Qt::AlignLeading);
    }
    m_failure->setObjectName(u"aboutFailure"_s);
    links->addWidget(m_failure);
    connect(&m_controller, &AboutPreferencesViewController::changed, this,
        &AboutPreferencesView::refresh);
    refresh();
}

void AboutPreferencesView::refresh()
{
    sayLine(*m_failure, {PreferencesLine::Kind::Failure, m_controller.state().failure});
}

} // namespace quillon
