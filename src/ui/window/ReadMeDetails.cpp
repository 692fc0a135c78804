// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/ReadMeDetails.h"

#include "base/Localized.h"
#include "presentation/window/ReadMeModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/PopoverHead.h"
#include "ui/window/InstallHelperButton.h"

#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

ReadMeDetails::ReadMeDetails(ReadMeModel &model, const Theme &theme)
{
    auto *head = new PopoverHead(theme, u"shield"_s);
    head->setTitle(localized("What is the helper?"));
    auto *explanation = plainLabel(ReadMeModel::text());
    explanation->setWordWrap(true);
    explanation->setAccessibleName(localized("About the helper"));
    explanation->setAccessibleDescription(explanation->text());
    auto *install = new InstallHelperButton(model, theme, Theme::Ink::OnAccent);
    install->setProperty("look", u"primary"_s);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit);
    column->addWidget(head);
    column->addWidget(explanation);
    column->addSpacing(Theme::unit / 2);
    column->addWidget(install, 0, Qt::AlignRight);
}

} // namespace quillon
