// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

namespace quillon {

/// Tells assistive technology that `widget`, drawn by itself, is a `role` of the accessibility
/// tree. Its name and description are those of the widget.
void setAccessibleRole(QWidget &widget, QAccessible::Role role);
/// What `widget` shows in words, beside its name: the value of a graph. Says that it changed.
void setAccessibleValue(QWidget &widget, const QString &value);
/// Says a message once, as for something that appeared by itself.
void announce(QWidget &widget, const QString &message);

} // namespace quillon
