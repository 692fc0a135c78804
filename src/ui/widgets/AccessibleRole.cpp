// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/AccessibleRole.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr const char *roleProperty = "accessibleRole";
constexpr const char *valueProperty = "accessibleValue";

class WidgetWithRole : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::Role role() const override
    {
        return static_cast<QAccessible::Role>(object()->property(roleProperty).toInt());
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (role() == QAccessible::Button) {
            state.hasPopup = true;
            state.expandable = true;
            state.expanded = object()->property("open").toBool();
            state.collapsed = !state.expanded;
        }
        const auto *button = qobject_cast<QAbstractButton *>(object());
        if (role() == QAccessible::PageTab && button != nullptr) {
            state.selectable = true;
            state.selected = button->isChecked();
        }
        return state;
    }
    // Qt leaves popups out of the tree: one that is open is found in what opened it.
    int childCount() const override
    {
        return popup() != nullptr ? 1 : QAccessibleWidget::childCount();
    }
    QAccessibleInterface *child(int index) const override
    {
        return popup() != nullptr && index == 0 ? QAccessible::queryAccessibleInterface(popup())
                                                : QAccessibleWidget::child(index);
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return popup() != nullptr && child->object() == popup()
                   ? 0
                   : QAccessibleWidget::indexOfChild(child);
    }
    QStringList actionNames() const override
    {
        const QStringList names = QAccessibleWidget::actionNames();
        return canBePressed() ? QStringList{pressAction()} + names : names;
    }
    void doAction(const QString &name) override
    {
        if (name == pressAction() && canBePressed()) {
            qobject_cast<QAbstractButton *>(object())->click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }
    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value) {
            return object()->property(valueProperty).toString();
        }
        // To Linux a value is a number: what it says in words is its description.
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Description && text.isEmpty()
                   ? object()->property(valueProperty).toString()
                   : text;
    }

private:
    QWidget *popup() const
    {
        for (auto *child :
            widget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (child->isWindow() && child->isVisible()) {
                return child;
            }
        }
        return nullptr;
    }
    bool canBePressed() const
    {
        return (role() == QAccessible::Button || role() == QAccessible::PageTab) &&
               widget()->isEnabled() && qobject_cast<QAbstractButton *>(object()) != nullptr;
    }
};

QAccessibleInterface *withRole(const QString &, QObject *object)
{
    auto *const widget = qobject_cast<QWidget *>(object);
    return widget != nullptr && widget->property(roleProperty).isValid()
               ? new WidgetWithRole(widget)
               : nullptr;
}

} // namespace

void setAccessibleRole(QWidget &widget, QAccessible::Role role)
{
    // Asked before those of Qt; the same function is installed once only.
    QAccessible::removeFactory(withRole);
    QAccessible::installFactory(withRole);
    widget.setProperty(roleProperty, static_cast<int>(role));
}

void setAccessibleValue(QWidget &widget, const QString &value)
{
    if (widget.property(valueProperty).toString() != value) {
        widget.setProperty(valueProperty, value);
        QAccessibleEvent changed(&widget, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&changed);
    }
}

void announce(QWidget &widget, const QString &message)
{
    widget.setAccessibleName(message);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent said(&widget, message);
#else
    QAccessibleEvent said(&widget, QAccessible::Alert);
#endif
    QAccessible::updateAccessibility(&said);
}

} // namespace quillon
