// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/AddressField.h"

#include "base/Localized.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QScopedValueRollback>
#include <QValidator>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr double addressScale = 1.9;

} // namespace

/// Puts a proposed text to the model. The line edit asks a validator before it takes over an edit,
/// and undoes an edit that is refused, cursor and all.
class AddressField::EntryRules : public QValidator
{
public:
    explicit EntryRules(AddressField &field)
        : QValidator(&field)
        , m_field(field)
    {
    }

    State validate(QString &text, int &) const override
    {
        if (text == m_field.shownText()) {
            return Acceptable;
        }
        // The model answers an edit with changes of its own, which have to wait for the edit's end.
        const QScopedValueRollback<bool> asking(m_field.m_asking, true);
        return m_field.m_model.editField(text) ? Acceptable : Invalid;
    }

private:
    AddressField &m_field;
};

AddressField::AddressField(MainWindowModel &model, QWidget *parent)
    : QLineEdit(parent)
    , m_model(model)
{
    setObjectName(u"hexField"_s);
    setAccessibleName(localized("Address"));
    setAccessibleDescription(localized(
        "Twelve hexadecimal digits, with or without colons. Return applies the address."));
    setFont(Theme::addressFont(addressScale));
    setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhPreferLatin);
    // Drops belong to the view around the field.
    setAcceptDrops(false);
    setText(shownText());
    setValidator(new EntryRules(*this));
    connect(this, &QLineEdit::textChanged, this, &AddressField::refresh);
    connect(this, &QLineEdit::editingFinished, &m_model, &MainWindowModel::endEditing);
}

QSize AddressField::sizeHint() const
{
    const QString widest = u"DD:DD:DD:DD:DD:DD"_s;
    QSize size = QLineEdit::sizeHint();
    // Room for the text, the cursor, and the frame's padding on both sides.
    size.setWidth(fontMetrics().horizontalAdvance(widest) + 4 * Theme::unit);
    return size;
}

QString AddressField::shownText() const
{
    // What the entry rules let in is plain; the settings may hold anything.
    return plainLine(m_model.state().fieldText);
}

void AddressField::refresh()
{
    if (m_asking || text() == shownText()) {
        return;
    }
    const int cursor = cursorPosition();
    setText(shownText());
    setCursorPosition(cursor);
}

} // namespace quillon
