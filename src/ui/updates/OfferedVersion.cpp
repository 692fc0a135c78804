// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/updates/OfferedVersion.h"

#include "base/Localized.h"
#include "presentation/updates/UpdatePreferencesViewController.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/ContentScrollArea.h"
#include "ui/widgets/PlainText.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A line more would be seen to its half.
constexpr double mostLines = 8.5;
/// Addresses may be any length, and are read from their beginning.
constexpr int widestPage = 400;

} // namespace

OfferedVersion::OfferedVersion(UpdatePreferencesViewController &model, QWidget *parent)
    : QFrame(parent)
    , m_model(model)
    , m_title(plainLabel())
    , m_details(plainLabel())
    , m_page(plainLabel())
    , m_notes(plainLabel())
    , m_notesArea(new ContentScrollArea(
          m_notes, static_cast<int>(mostLines * m_notes->fontMetrics().lineSpacing())))
    , m_open(new QPushButton(localized("Open Page")))
{
    setObjectName(u"offeredVersion"_s);
    setProperty("look", u"card"_s);
    m_title->setFont(Theme::font(Theme::Type::Head));
    m_title->setWordWrap(true);
    m_details->setProperty("look", u"caption"_s);
    m_details->setWordWrap(true);
    m_page->setProperty("look", u"caption"_s);
    m_notes->setObjectName(u"releaseNotes"_s);
    m_notes->setWordWrap(true);
    // Paragraphs in a language of their own begin where that does.
    m_notes->setAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    m_notesArea->setAccessibleName(localized("What is new"));
    m_open->setObjectName(u"openOfferButton"_s);
    m_open->setProperty("look", u"primary"_s);
    m_open->setAccessibleName(m_open->text());
    m_open->setAutoDefault(true);
    connect(m_open, &QPushButton::clicked, this, [this] { m_model.openOffer(); });

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(
        Theme::cardMargin, Theme::cardMarginTop, Theme::cardMargin, Theme::cardMarginTop);
    column->setSpacing(Theme::unit / 2);
    column->addWidget(m_title);
    column->addWidget(m_details);
    column->addSpacing(Theme::unit / 2);
    column->addWidget(m_notesArea);
    column->addSpacing(Theme::unit / 2);
    column->addWidget(m_page);
    column->addWidget(m_open, 0, Qt::AlignRight);
}

void OfferedVersion::refresh()
{
    const auto &state = m_model.state();
    const bool isNew = !state.offer.isEmpty() && plainLine(state.offer) != m_title->text();
    showLine(*m_title, state.offer);
    showLine(*m_details, state.offerDetails);
    showLine(*m_page, state.page, widestPage);
    m_page->setToolTip(plainToolTip(state.page));
    showBroken(*m_notes, plainParagraphs(state.notes));
    m_notesArea->setVisible(!state.notes.isEmpty());
    m_open->setToolTip(
        plainToolTip(localized("Show it in the software center, or in the browser")));
    m_open->setAccessibleDescription(state.page);
    setVisible(!state.offer.isEmpty());
    // To whom it comes into sight; the others hear of it when they get here.
    if (isNew && isVisible()) {
        announce(*m_title, m_title->text());
    }
}

} // namespace quillon
