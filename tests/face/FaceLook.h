// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Languages.h"
#include "platform/desktop/AppearanceSource.h"

#include <QFont>
#include <QStringList>
#include <QTranslator>

#include <optional>

namespace quillon::test {

/// How a desktop and its user want to see the program.
struct FaceLook
{
    QString name;
    Appearance appearance{.scheme = ColorScheme::Light, .isStill = true};
    int textScale = 1;  ///< how many times larger than usual texts are
    bool wordy = false; ///< in a language whose words are longer by two fifths
    bool mirrored = false;
    QString language = {}; ///< one that the program speaks; none is English
};

/// Those that the program has tables of, all but English.
QStringList spokenLanguages();

/// The application in that look, for as long as this exists; windows are made meanwhile.
class DressedApplication
{
public:
    explicit DressedApplication(const FaceLook &look);
    ~DressedApplication();
    DressedApplication(const DressedApplication &) = delete;
    DressedApplication &operator=(const DressedApplication &) = delete;

private:
    class WordyLanguage : public QTranslator
    {
    public:
        QString translate(
            const char *context, const char *text, const char *comment, int number) const override;
        bool isEmpty() const override { return false; }
    };

    QFont m_font;
    Qt::LayoutDirection m_direction;
    WordyLanguage m_wordyLanguage;
    std::optional<UserLanguage> m_language;
};

} // namespace quillon::test
