// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/ShortcutField.h"

#include "base/Localized.h"
#include "presentation/preferences/ShortcutRecorder.h"
#include "ui/preferences/PaneLayout.h"
#include "ui/preferences/SettingCheckBox.h"
#include "ui/preferences/ShortcutButton.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

ShortcutField::ShortcutField(
    BoundSetting &isOn, ShortcutRecorder &recorder, const QString &name, const Theme &theme)
    : m_recorder(recorder)
    , m_button(new ShortcutButton(recorder))
    , m_clear(new QToolButton)
    , m_line(new InlineLine(theme))
{
    m_button->setObjectName(name + u"Recorder"_s);
    m_clear->setObjectName(name + u"Clear"_s);
    const QString clear =
        filled(localized("Clear the shortcut for \u201C%@\u201D"), {recorder.title()});
    m_clear->setAccessibleName(clear);
    m_clear->setToolTip(plainToolTip(clear));
    m_clear->setProperty("look", u"quiet"_s);
    m_clear->setIcon(theme.icon(u"close"_s, Theme::Ink::Muted));
    m_clear->setIconSize(QSize(Theme::inlineIconSize, Theme::inlineIconSize));
    m_clear->setFixedSize(Theme::target, Theme::target);
    m_clear->setFocusPolicy(Qt::StrongFocus);
    // The fields stand below each other whether there is something to clear or not.
    QSizePolicy kept = m_clear->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    m_clear->setSizePolicy(kept);
    connect(m_clear, &QToolButton::clicked, this, [this] {
        m_button->setFocus(Qt::OtherFocusReason);
        m_recorder.clear();
    });

    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Theme::unit);
    row->addWidget(new SettingCheckBox(isOn, name, recorder.title()));
    row->addStretch();
    row->addWidget(m_button);
    row->addWidget(m_clear);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit / 2);
    column->addLayout(row);
    addUnderCheckBox(*column, m_line);
    connect(&m_recorder, &ShortcutRecorder::changed, this, &ShortcutField::refresh);
    refresh();
}

void ShortcutField::refresh()
{
    const auto &state = m_recorder.state();
    m_clear->setVisible(!state.isEmpty);
    sayLine(*m_line, state.line);
}

} // namespace quillon
