// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/theme/Theme.h"

#include "platform/desktop/Compositing.h"
#include "ui/theme/FocusRing.h"
#include "ui/theme/SymbolicIcon.h"
#include "ui/theme/ThemeStyle.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QRegularExpression>

#include <utility>

// The resources stand in a static library: without this the linker would leave them out. It must be
// called outside of any namespace.
static void initializeResources()
{
    Q_INIT_RESOURCE(ui);
}

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Without a desktop's own settings Qt asks for these names, which stand for no font in particular.
bool isGenericFamily(const QString &family)
{
    return family.isEmpty() || family == "Sans Serif"_L1 || family == "Sans"_L1;
}

QHash<QString, QString> namedColors(const ThemeColors &colors)
{
    const std::pair<const char *, QColor> table[] = {
        {"window", colors.window},
        {"surface", colors.surface},
        {"surfaceBorder", colors.surfaceBorder},
        {"popoverBorder", colors.popoverBorder},
        {"control", colors.control},
        {"controlHover", colors.controlHover},
        {"controlPressed", colors.controlPressed},
        {"controlBorder", colors.controlBorder},
        {"text", colors.text},
        {"mutedText", colors.mutedText},
        {"disabledText", colors.disabledText},
        {"accent", colors.accent},
        {"accentHover", colors.accentHover},
        {"accentPressed", colors.accentPressed},
        {"onAccent", colors.onAccent},
        {"tint", colors.tint},
        {"tintEdge", colors.tintEdge},
        {"onTint", colors.onTint},
        {"disabledFill", colors.disabledFill},
        {"positive", colors.positive},
        {"notice", colors.notice},
        {"noticeSurface", colors.noticeSurface},
        {"danger", colors.danger},
        {"dangerSurface", colors.dangerSurface},
        {"heart", colors.heart},
        {"hint", colors.hint},
        {"hintText", colors.hintText},
        {"hintBody", colors.hintBody},
        {"hintButton", colors.hintButton},
        {"hintButtonHover", colors.hintButtonHover},
        {"onHintButton", colors.onHintButton},
    };
    QHash<QString, QString> names;
    for (const auto &[name, color] : table) {
        names.insert(QString::fromLatin1(name), color.name());
    }
    return names;
}

} // namespace

Theme::Theme(ColorScheme scheme)
    : m_scheme(scheme)
    , m_colors(ThemeColors::forScheme(scheme))
{
    initializeResources();
}

Theme::~Theme() = default;

QColor Theme::ink(Ink ink) const
{
    switch (ink) {
    case Ink::Text:
        return m_colors.text;
    case Ink::Muted:
        return m_colors.mutedText;
    case Ink::Accent:
        return m_colors.accent;
    case Ink::OnAccent:
        return m_colors.onAccent;
    case Ink::OnTint:
        return m_colors.onTint;
    case Ink::Positive:
        return m_colors.positive;
    case Ink::Notice:
        return m_colors.notice;
    case Ink::Danger:
        return m_colors.danger;
    case Ink::Heart:
        return m_colors.heart;
    case Ink::Hint:
        return m_colors.hintText;
    case Ink::OnHintButton:
        return m_colors.onHintButton;
    case Ink::Tray:
        return QColor(0x4a80f0);
    }
    Q_UNREACHABLE();
}

void Theme::apply()
{
    // A cursor that blinks would wake the program twice a second as long as its window is in use.
    QApplication::setCursorFlashTime(0);
    QApplication::setStyle(new ThemeStyle);
    if (!m_focusRing) {
        m_focusRing = std::make_unique<FocusRing>(*this);
    }
    QFont font = QApplication::font();
    const QString preferred = u"Inter"_s;
    if (isGenericFamily(font.family()) && QFontDatabase::families().contains(preferred)) {
        font.setFamily(preferred);
        font.setPointSizeF(10);
        QApplication::setFont(font);
    }
    QApplication::setPalette(m_colors.palette());
    QFile file(u":/ui/theme.qss"_s);
    if (file.open(QIODevice::ReadOnly)) {
        const QString sheet = styleSheet(QString::fromUtf8(file.readAll()), m_colors, m_scheme);
        qobject_cast<QApplication *>(QCoreApplication::instance())->setStyleSheet(sheet);
    }
}

void Theme::setScheme(ColorScheme scheme)
{
    if (scheme != m_scheme) {
        m_scheme = scheme;
        recolor();
    }
}

void Theme::setContrast(Contrast contrast)
{
    if (contrast != m_contrast) {
        m_contrast = contrast;
        recolor();
    }
}

void Theme::recolor()
{
    m_colors = ThemeColors::forScheme(m_scheme, m_contrast);
    apply();
    Q_EMIT changed();
}

int Theme::motion(std::chrono::milliseconds wanted) const
{
    return m_animated ? static_cast<int>(wanted.count()) : 0;
}

bool Theme::windowsBlend() const
{
    return m_compositing != nullptr && m_compositing->isActive();
}

QIcon Theme::icon(const QString &name, Ink ink) const
{
    return QIcon(new SymbolicIcon(*this, name, ink));
}

QFont Theme::font(Type type)
{
    switch (type) {
    case Type::Title:
        return textFont(1.3, QFont::DemiBold);
    case Type::Head:
        return textFont(1.1, QFont::DemiBold);
    case Type::Body:
        return textFont(1.0);
    case Type::Strong:
        return textFont(1.0, QFont::DemiBold);
    case Type::Caption:
        return textFont(0.9);
    case Type::Badge:
        return textFont(0.9, QFont::DemiBold);
    case Type::AddressField:
        return addressFont(1.6);
    case Type::Address:
        return addressFont(1.0);
    }
    Q_UNREACHABLE();
}

QFont Theme::addressFont(double scale)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setStyleHint(QFont::Monospace);
    font.setPointSizeF(QApplication::font().pointSizeF() * scale);
    return font;
}

QFont Theme::textFont(double scale, QFont::Weight weight)
{
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setWeight(weight);
    return font;
}

QString Theme::styleSheet(const QString &pattern, const ThemeColors &colors, ColorScheme scheme)
{
    QHash<QString, QString> names = namedColors(colors);
    names.insert(
        u"chevron"_s, scheme == ColorScheme::Dark ? u"chevron-dark.svg"_s : u"chevron-light.svg"_s);
    names.insert(u"chevronUp"_s,
        scheme == ColorScheme::Dark ? u"chevron-up-dark.svg"_s : u"chevron-up-light.svg"_s);
    names.insert(
        u"check"_s, scheme == ColorScheme::Dark ? u"check-dark.svg"_s : u"check-light.svg"_s);
    static const QRegularExpression name(u"@([A-Za-z]+)"_s);
    QString sheet;
    qsizetype copied = 0;
    auto matches = name.globalMatch(pattern);
    while (matches.hasNext()) {
        const auto match = matches.next();
        sheet += pattern.mid(copied, match.capturedStart() - copied);
        sheet += names.value(match.captured(1), match.captured());
        copied = match.capturedEnd();
    }
    return sheet + pattern.mid(copied);
}

} // namespace quillon
