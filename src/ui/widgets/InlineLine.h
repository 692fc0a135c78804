// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

namespace quillon {

class Theme;

/// What is said under a control: muted, or with a sign in amber or red. It keeps the room of one
/// line also while it says nothing, so that nothing below it moves.
class InlineLine : public QWidget
{
    Q_OBJECT

public:
    enum class Kind
    {
        Muted,
        Positive,
        Notice,
        Danger,
    };

    explicit InlineLine(const Theme &theme, QWidget *parent = nullptr);

    /// What is not muted is announced once when it appears.
    void say(const QString &text, Kind kind = Kind::Muted);
    QString text() const;
    Kind kind() const { return m_kind; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    bool hasSign() const;
    void makeRoom();

    const Theme &m_theme;
    QLabel *m_text;
    QString m_said;
    Kind m_kind = Kind::Muted;
};

} // namespace quillon
