// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/NewSavedEntryPopover.h"

#include "base/Localized.h"
#include "presentation/networks/NewSavedEntryModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QValidator>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Model = NewSavedEntryModel;

InlineLine::Kind kindOf(Model::Line::Kind kind)
{
    switch (kind) {
    case Model::Line::Kind::Notice:
        return InlineLine::Kind::Notice;
    case Model::Line::Kind::Failure:
        return InlineLine::Kind::Danger;
    case Model::Line::Kind::Hint:
        break;
    }
    return InlineLine::Kind::Muted;
}

} // namespace

/// Puts a proposed text to the model: an edit that it refuses is undone, cursor and all.
class NewSavedEntryPopover::EntryRules : public QValidator
{
public:
    explicit EntryRules(NewSavedEntryPopover &form)
        : QValidator(&form)
        , m_form(form)
    {
    }

    State validate(QString &text, int &) const override
    {
        return text == m_form.m_model.state().address || m_form.m_model.editAddress(text)
                   ? Acceptable
                   : Invalid;
    }

private:
    NewSavedEntryPopover &m_form;
};

NewSavedEntryPopover::NewSavedEntryPopover(
    NewSavedEntryModel &model, const Theme &theme, QWidget *parent)
    : Popover(theme, new QWidget, parent)
    , m_model(model)
    , m_address(new QLineEdit)
    , m_name(new QLineEdit)
    , m_line(new InlineLine(theme))
    , m_add(new QPushButton(localized("Add")))
{
    setAccessibleRole(*this, QAccessible::Dialog);
    m_address->setFont(Theme::font(Theme::Type::Address));
    m_address->setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhPreferLatin);
    m_address->setValidator(new EntryRules(*this));
    m_add->setProperty("look", u"primary"_s);
    m_add->setAutoDefault(true);
    makeContent();
    connect(m_name, &QLineEdit::textEdited, &m_model, &Model::editName);
    for (const QLineEdit *field : {m_address, m_name}) {
        connect(field, &QLineEdit::returnPressed, this, &NewSavedEntryPopover::add);
    }
    connect(m_add, &QPushButton::clicked, this, &NewSavedEntryPopover::add);
    connect(this, &Popover::aboutToShow, this, &NewSavedEntryPopover::begin);
    connect(&m_model, &Model::changed, this, &NewSavedEntryPopover::refresh);
    refresh();
}

void NewSavedEntryPopover::makeContent()
{
    auto *column = new QVBoxLayout(content());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit / 2);
    if (m_model.kind() == Model::Kind::Address) {
        addField(*column, *m_address, localized("Address"));
        column->addWidget(m_line);
        column->addSpacing(Theme::unit / 2);
        addField(*column, *m_name, localized("Name (optional)"));
    } else {
        addField(*column, *m_name, localized("Network name"));
        column->addSpacing(Theme::unit / 2);
        addField(*column, *m_address, localized("BSSID"));
        column->addWidget(m_line);
    }
    column->addSpacing(Theme::unit / 2);
    column->addWidget(m_add, 0, Qt::AlignRight);
}

void NewSavedEntryPopover::addField(QVBoxLayout &column, QLineEdit &field, const QString &caption)
{
    auto *label = plainLabel(caption);
    label->setProperty("look", u"caption"_s);
    label->setBuddy(&field);
    field.setProperty("look", u"field"_s);
    field.setAccessibleName(caption);
    column.addWidget(label);
    column.addWidget(&field);
}

void NewSavedEntryPopover::begin()
{
    m_model.begin();
    m_name->clear();
    m_address->clear();
    // Qt's hint is that of seventeen letters x; a whole address is as many digits, a little wider.
    m_address->ensurePolished();
    m_address->setMinimumWidth(m_address->sizeHint().width() + Theme::unit);
    refresh();
}

void NewSavedEntryPopover::refresh()
{
    const auto &state = m_model.state();
    m_line->say(plainLine(state.line.text), kindOf(state.line.kind));
    m_add->setEnabled(state.canAdd);
}

void NewSavedEntryPopover::add()
{
    if (m_model.add()) {
        close();
    }
}

} // namespace quillon
