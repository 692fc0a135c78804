// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/cloud/PassphraseModel.h"

#include "base/Localized.h"

namespace quillon {

namespace {

using About = CloudPassphrase::Problem::About;
using Step = CloudPassphrase::Step;
using Field = PassphraseModel::Field;

/// What is copied has the end of its line with it now and then. A space may belong to it.
QString withoutLineEnds(QString text)
{
    while (text.endsWith(u'\n') || text.endsWith(u'\r')) {
        text.chop(1);
    }
    return text;
}

QString progressOf(Step step)
{
    switch (step) {
    case Step::None:
        break;
    case Step::Reading:
        return localized("Reading the account's key file…");
    case Step::Checking:
        return localized("Opening the account with the passphrase…");
    case Step::Writing:
        return localized("Writing the account's key file…");
    case Step::Keeping:
        return localized("Waiting for the keyring…");
    }
    return {};
}

Field fieldOf(About about)
{
    switch (about) {
    case About::Nothing:
        break;
    case About::Current:
        return Field::Current;
    case About::Passphrase:
        return Field::Passphrase;
    case About::Repeated:
        return Field::Repeated;
    }
    return Field::Nothing;
}

} // namespace

PassphraseModel::PassphraseModel() = default;

void PassphraseModel::use(CloudPassphrase &passphrase)
{
    m_passphrase = &passphrase;
    connect(m_passphrase, &CloudPassphrase::stepChanged, this, &PassphraseModel::showProgress);
    connect(m_passphrase, &CloudPassphrase::failed, this, &PassphraseModel::take);
    connect(m_passphrase, &CloudPassphrase::changed, this, &PassphraseModel::takeSuccess);
}

QString &PassphraseModel::textOf(Field field)
{
    switch (field) {
    case Field::Nothing:
        break;
    case Field::Current:
        return m_form.current;
    case Field::Passphrase:
        return m_form.passphrase;
    case Field::Repeated:
        return m_form.repeated;
    }
    qFatal("not a field with a text");
}

const QString &PassphraseModel::text(Field field) const
{
    return const_cast<PassphraseModel *>(this)->textOf(field);
}

void PassphraseModel::open()
{
    if (m_passphrase == nullptr || m_state->isOpen) {
        return;
    }
    m_state.update([](State &state) { state = {.isOpen = true}; });
    if (m_passphrase->step() != Step::None) {
        // One that went on when the dialog was closed.
        m_state.update([](State &state) { state.isBusy = true; });
        showProgress();
    }
}

void PassphraseModel::close()
{
    if (!m_state->isOpen) {
        return;
    }
    const bool wasBusy = m_state->isBusy;
    m_state.update([](State &state) { state = {}; });
    forgetSecrets();
    if (wasBusy) {
        m_passphrase->cancel();
    }
}

void PassphraseModel::edit(Field field, const QString &text)
{
    QString &place = textOf(field);
    if (m_state->isBusy || place == text) {
        return;
    }
    place = text;
    m_state.update([](State &state) { state.failure.clear(); });
}

void PassphraseModel::change()
{
    if (!m_state->isOpen || m_state->isBusy) {
        return;
    }
    m_state.update([](State &state) { state = {.isOpen = true, .isBusy = true}; });
    m_passphrase->begin({withoutLineEnds(m_form.current), withoutLineEnds(m_form.passphrase),
        withoutLineEnds(m_form.repeated)});
}

void PassphraseModel::cancel()
{
    if (!m_state->isBusy) {
        close();
    } else if (m_passphrase->cancel()) {
        m_state.update([](State &state) { state = {.isOpen = state.isOpen}; });
    }
}

void PassphraseModel::showProgress()
{
    if (!m_state->isBusy) {
        return;
    }
    const Step step = m_passphrase->step();
    m_state.update([step](State &state) {
        state.progress = progressOf(step);
        state.isTooLate = step == Step::Writing || step == Step::Keeping;
    });
}

void PassphraseModel::take(const CloudPassphrase::Problem &problem)
{
    if (!m_state->isOpen) {
        Q_EMIT told(problem.text);
        return;
    }
    m_state.update([&problem](State &state) { state = {.isOpen = true, .failure = problem.text}; });
    Q_EMIT fieldWanted(fieldOf(problem.about));
}

void PassphraseModel::takeSuccess()
{
    m_state.update([](State &state) { state = {}; });
    forgetSecrets();
    Q_EMIT told(localized("The passphrase was changed. Your other computers stay signed in."));
}

void PassphraseModel::forgetSecrets()
{
    m_form = {};
}

} // namespace quillon
