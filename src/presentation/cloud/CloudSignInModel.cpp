// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/cloud/CloudSignInModel.h"

#include "base/Localized.h"

#include <QDir>
#include <QUrl>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using About = CloudSignIn::Problem::About;
using Remedy = CloudSignIn::Problem::Remedy;
using Step = CloudSignIn::Step;
using Field = CloudSignInModel::Field;

/// "3A:F0:12:34:56:78:9A:BC:" is a line.
constexpr qsizetype groupLetters = 24;

/// What is copied has the end of its line with it now and then. A space may belong to it.
QString withoutLineEnds(QString text)
{
    while (text.endsWith(u'\n') || text.endsWith(u'\r')) {
        text.chop(1);
    }
    return text;
}

/// As a file manager or a terminal names it.
QString folderPath(const QString &typed)
{
    const QString text = typed.trimmed();
    if (text.isEmpty()) {
        return text;
    }
    if (const QUrl url(text); url.isLocalFile()) {
        return QDir::cleanPath(url.toLocalFile());
    }
    if (text == u"~"_s || text.startsWith(u"~/"_s)) {
        return QDir::cleanPath(QDir::homePath() + text.mid(1));
    }
    return QDir::cleanPath(text);
}

QString progressOf(Step step)
{
    switch (step) {
    case Step::None:
        break;
    case Step::Looking:
        return localized("Looking for your files…");
    case Step::Trying:
        return localized("Trying what the account can do…");
    case Step::Unlocking:
        return localized("Opening the account with the passphrase…");
    case Step::Keeping:
        return localized("Waiting for the keyring…");
    }
    return {};
}

Field fieldOf(const CloudSignIn::Problem &problem)
{
    switch (problem.remedy) {
    case Remedy::AcceptCertificate:
        return problem.fingerprint.isEmpty() ? Field::Address : Field::Certificate;
    case Remedy::RepeatPassphrase:
        return Field::RepeatedPassphrase;
    case Remedy::AnotherPassphrase:
        return Field::Passphrase;
    case Remedy::Another:
        break;
    }
    switch (problem.about) {
    case About::Nothing:
        break;
    case About::Address:
        return Field::Address;
    case About::Password:
        return Field::Password;
    case About::Folder:
        return Field::Folder;
    case About::Passphrase:
        return Field::Passphrase;
    }
    return Field::Nothing;
}

} // namespace

CloudSignInModel::CloudSignInModel() = default;

void CloudSignInModel::use(CloudSignIn &signIn)
{
    m_signIn = &signIn;
    connect(m_signIn, &CloudSignIn::stepChanged, this, &CloudSignInModel::showProgress);
    connect(m_signIn, &CloudSignIn::failed, this, &CloudSignInModel::take);
    connect(m_signIn, &CloudSignIn::signedIn, this, &CloudSignInModel::takeSuccess);
    connect(m_signIn, &CloudSignIn::accountChanged, this, &CloudSignInModel::remember);
    remember();
}

QString &CloudSignInModel::textOf(Field field)
{
    switch (field) {
    case Field::Nothing:
    case Field::Certificate:
        break;
    case Field::Address:
        return m_form.address;
    case Field::User:
        return m_form.user;
    case Field::Password:
        return m_form.password;
    case Field::Folder:
        return m_form.folder;
    case Field::Passphrase:
        return m_form.passphrase;
    case Field::RepeatedPassphrase:
        return m_form.repeatedPassphrase;
    }
    qFatal("not a field with a text");
}

const QString &CloudSignInModel::text(Field field) const
{
    return const_cast<CloudSignInModel *>(this)->textOf(field);
}

QStringList CloudSignInModel::fingerprintGroups() const
{
    QStringList groups;
    const QString &whole = m_state->fingerprint;
    for (qsizetype begin = 0; begin < whole.size(); begin += groupLetters) {
        groups.append(whole.mid(begin, groupLetters));
    }
    return groups;
}

void CloudSignInModel::open()
{
    if (m_signIn != nullptr && !m_state->isOpen) {
        remember();
        m_state.update([this](State &state) { state = {.isOpen = true, .kind = m_form.kind}; });
    }
}

void CloudSignInModel::close()
{
    if (!m_state->isOpen) {
        return;
    }
    const bool wasBusy = m_state->isBusy;
    m_state.update([this](State &state) { state = {.kind = m_form.kind}; });
    forgetSecrets();
    if (wasBusy) {
        m_signIn->cancel();
    }
}

void CloudSignInModel::choose(CloudAccount::Kind kind)
{
    if (m_state->isBusy || kind == m_form.kind) {
        return;
    }
    m_form.kind = kind;
    m_form.repeatedPassphrase.clear();
    m_state.update([kind](State &state) { state = {.isOpen = state.isOpen, .kind = kind}; });
}

void CloudSignInModel::edit(Field field, const QString &text)
{
    QString &place = textOf(field);
    if (m_state->isBusy || place == text) {
        return;
    }
    place = text;
    const bool isPlace = field == Field::Address || field == Field::User || field == Field::Folder;
    if (field == Field::Address) {
        m_form.fingerprint.clear();
    }
    if (isPlace) {
        // Whether that one is new nobody knows yet.
        m_form.repeatedPassphrase.clear();
    }
    m_state.update([&](State &state) {
        state.line = {};
        if (field == Field::Address) {
            state.fingerprint.clear();
        }
        state.asksToRepeat = state.asksToRepeat && !isPlace;
    });
}

CloudSignIn::Wanted CloudSignInModel::said() const
{
    CloudSignIn::Wanted wanted{
        .kind = m_form.kind, .passphrase = withoutLineEnds(m_form.passphrase)};
    if (m_state->asksToRepeat) {
        wanted.repeatedPassphrase = withoutLineEnds(m_form.repeatedPassphrase);
    }
    if (m_form.kind == CloudAccount::Kind::Folder) {
        wanted.folder = folderPath(m_form.folder);
    } else {
        wanted.address = m_form.address.trimmed();
        wanted.user = m_form.user.trimmed();
        wanted.password = withoutLineEnds(m_form.password);
        wanted.fingerprint = m_form.fingerprint;
    }
    return wanted;
}

std::pair<CloudSignInModel::Field, QString> CloudSignInModel::missing() const
{
    const CloudSignIn::Wanted wanted = said();
    if (wanted.kind == CloudAccount::Kind::Folder) {
        if (wanted.folder.isEmpty()) {
            return {Field::Folder, localized("Choose a folder.")};
        }
        if (!QDir::isAbsolutePath(wanted.folder)) {
            return {Field::Folder, localized("Write the whole path of the folder.")};
        }
    } else if (wanted.address.isEmpty()) {
        return {Field::Address, localized("Enter the address of the server.")};
    } else if (wanted.user.isEmpty()) {
        return {Field::User, localized("Enter your user name.")};
    } else if (wanted.password.isEmpty()) {
        return {Field::Password, localized("Enter an app password.")};
    }
    if (wanted.passphrase.isEmpty()) {
        return {Field::Passphrase, localized("Enter a passphrase.")};
    }
    if (m_state->asksToRepeat && wanted.repeatedPassphrase != wanted.passphrase) {
        return {Field::RepeatedPassphrase, localized("The two passphrases are not the same.")};
    }
    return {Field::Nothing, {}};
}

void CloudSignInModel::signIn()
{
    if (!m_state->isOpen || m_state->isBusy) {
        return;
    }
    if (const auto [field, why] = missing(); field != Field::Nothing) {
        refuse(field, {Line::Kind::Failure, why});
        return;
    }
    begin();
}

void CloudSignInModel::acceptCertificate()
{
    if (m_state->isBusy || m_state->fingerprint.isEmpty()) {
        return;
    }
    m_form.fingerprint = m_fingerprint;
    signIn();
}

void CloudSignInModel::begin()
{
    m_state.update([](State &state) {
        state.isBusy = true;
        state.line = {};
        state.fingerprint.clear();
    });
    m_signIn->begin(said());
}

void CloudSignInModel::cancel()
{
    if (!m_state->isBusy) {
        close();
        return;
    }
    m_state.update([](State &state) {
        state.isBusy = false;
        state.line = {};
    });
    m_signIn->cancel();
}

void CloudSignInModel::showProgress()
{
    if (m_state->isBusy) {
        m_state.update([this](State &state) {
            state.line = {Line::Kind::Progress, progressOf(m_signIn->step())};
        });
    }
}

void CloudSignInModel::refuse(Field field, const Line &line)
{
    m_state.update([&line](State &state) {
        state.isBusy = false;
        state.line = line;
    });
    Q_EMIT fieldWanted(field);
}

void CloudSignInModel::take(const CloudSignIn::Problem &problem)
{
    if (!m_state->isBusy) {
        return;
    }
    const bool isNew = problem.remedy == Remedy::RepeatPassphrase;
    const bool asks = problem.remedy == Remedy::AcceptCertificate;
    const bool asksToRepeat =
        isNew || (m_state->asksToRepeat && problem.remedy != Remedy::AnotherPassphrase);
    if (asks) {
        // What was accepted before, if anything, is not this server's any more.
        m_form.fingerprint.clear();
        m_fingerprint = problem.fingerprint;
    }
    if (!asksToRepeat) {
        m_form.repeatedPassphrase.clear();
    }
    m_state.update([&](State &state) {
        state.fingerprint = asks ? fingerprintText(m_fingerprint) : QString();
        state.asksToRepeat = asksToRepeat;
    });
    refuse(fieldOf(problem), {isNew ? Line::Kind::Notice : Line::Kind::Failure, problem.text});
}

void CloudSignInModel::takeSuccess()
{
    if (!m_state->isBusy) {
        return;
    }
    m_state.update([this](State &state) { state = {.kind = m_form.kind}; });
    forgetSecrets();
    Q_EMIT signedIn();
}

void CloudSignInModel::remember()
{
    const auto account = m_signIn->account();
    if (!account || m_state->isOpen) {
        return;
    }
    m_form.kind = account->kind;
    m_form.user = account->user;
    if (account->kind == CloudAccount::Kind::Folder) {
        m_form.folder = account->folder;
    } else {
        m_form.address = account->server.toString();
        m_form.fingerprint = account->fingerprint;
    }
}

void CloudSignInModel::forgetSecrets()
{
    for (QString *secret : {&m_form.password, &m_form.passphrase, &m_form.repeatedPassphrase}) {
        secret->clear();
    }
    m_form.fingerprint.clear();
    m_fingerprint.clear();
    remember();
}

} // namespace quillon
