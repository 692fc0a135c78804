// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/AutostartLoginItem.h"

#include "base/DurableFolder.h"
#include "base/Localized.h"
#include "platform/linux/bus/BusCall.h"
#include "platform/linux/desktop/AutostartDesktop.h"
#include "platform/linux/desktop/AutostartEntry.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

constexpr auto answerLimit = 5s;
constexpr qint64 longestEntry = 65536;

/// As the program announces itself on the bus, too.
const QString helperIdentifier = u"com.orvandel.Quillon4Helper"_s;

const QString systemd = u"org.freedesktop.systemd1"_s;

QDBusMessage callTo(const QString &path, const QString &interface, const QString &method,
    const QVariantList &arguments)
{
    auto call = QDBusMessage::createMethodCall(systemd, path, interface, method);
    call.setArguments(arguments);
    call.setAutoStartService(false);
    return call;
}

/// A pipe would hang whoever reads it.
std::optional<QByteArray> contentOf(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.read(longestEntry);
}

QString entryIn(const QString &folder, const QString &identifier)
{
    return folder + u"/autostart/"_s + identifier + u".desktop"_s;
}

QString currentDesktop()
{
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP");
}

bool write(const QString &path, const QByteArray &text)
{
    if (makeFolder(QFileInfo(path).path())) {
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        return false;
    }
    syncFolder(QFileInfo(path).path());
    return true;
}

} // namespace

AutostartLoginItem::AutostartLoginItem(Folders folders, QString program, const QDBusConnection &bus)
    : m_folders(std::move(folders))
    , m_program(std::move(program))
    , m_bus(bus)
{
}

AutostartLoginItem::Folders AutostartLoginItem::folders()
{
    Folders folders;
    folders.own = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    folders.shared = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    folders.shared.removeAll(folders.own);
    return folders;
}

QString AutostartLoginItem::besideProgram(const QString &programFolder)
{
    QString path;
    for (const char *const place :
        {"../" QUILLON_LIBEXEC_FOLDER "/quillon4/QuillonHelper", "../login/QuillonHelper"}) {
        path = QDir::cleanPath(programFolder + u'/' + QLatin1String(place));
        if (QFileInfo(path).isExecutable()) {
            break;
        }
    }
    return path;
}

std::optional<LoginItem::Program> AutostartLoginItem::program() const
{
    const QFileInfo file(m_program);
    if (!file.isFile() || !file.isExecutable()) {
        return std::nullopt;
    }
    return Program{helperIdentifier, QUrl::fromLocalFile(m_program)};
}

bool AutostartLoginItem::setEnabled(const QString &identifier, bool enabled)
{
    const QString path = pathOf(identifier);
    const AutostartEntry known = AutostartEntry::read(contentOf(path).value_or(QByteArray()));
    const auto putIn = [&] {
        return write(
            path, AutostartEntry::text(m_program, localized("Starts Quillon when you log in")));
    };
    switch (entryAt(path)) {
    case Entry::None:
        return enabled ? isStartedForAll(identifier) || putIn() : takeOut(identifier);
    case Entry::Ours:
        if (!enabled) {
            return takeOut(identifier);
        }
        // Else the program has moved.
        return QFileInfo(known.program).isExecutable() || putIn();
    case Entry::SwitchedOff:
    case Entry::OtherDesktop:
        if (enabled) {
            // By the user here, not by the desktop: this is the way back.
            return known.isMask && (isStartedForAll(identifier) ? QFile::remove(path) : putIn());
        }
        // Without it, switching on is our user's wish. A command that is not ours stays.
        return (!known.command.isEmpty() && !startsProgram(known.program)) || takeOut(identifier);
    case Entry::Foreign:
        break;
    }
    return false;
}

LoginItem::Entry AutostartLoginItem::entry() const
{
    const Entry own = entryAt(pathOf(helperIdentifier));
    return own == Entry::None && isStartedForAll(helperIdentifier) ? Entry::Ours : own;
}

void AutostartLoginItem::findDesktop(std::function<void(Desktop)> reply)
{
    const auto answer = [reply = std::move(reply)](bool hasSystemdRunThem) {
        reply(autostartDesktop(currentDesktop(), hasSystemdRunThem));
    };
    const auto onUnit = [this, answer](const QDBusMessage &message) {
        if (message.type() != QDBusMessage::ReplyMessage) {
            answer(false);
            return;
        }
        const QString unit = message.arguments().value(0).value<QDBusObjectPath>().path();
        callBus(m_bus, this,
            callTo(unit, u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
                {u"org.freedesktop.systemd1.Unit"_s, u"ActiveState"_s}),
            answerLimit, [answer](const QDBusMessage &state) {
                // An error has a text as its first argument, which is no variant.
                answer(state.arguments().value(0).value<QDBusVariant>().variant().toString() ==
                       "active"_L1);
            });
    };
    callBus(m_bus, this,
        callTo(u"/org/freedesktop/systemd1"_s, u"org.freedesktop.systemd1.Manager"_s, u"GetUnit"_s,
            {u"xdg-desktop-autostart.target"_s}),
        answerLimit, onUnit);
}

QString AutostartLoginItem::pathOf(const QString &identifier) const
{
    return entryIn(m_folders.own, identifier);
}

LoginItem::Entry AutostartLoginItem::entryAt(const QString &path) const
{
    const QFileInfo file(path);
    if (!file.exists() && !file.isSymLink()) {
        return Entry::None;
    }
    const auto content = contentOf(path);
    if (!content) {
        return Entry::Foreign;
    }
    const AutostartEntry entry = AutostartEntry::read(*content);
    if (entry.isSwitchedOff) {
        return Entry::SwitchedOff;
    }
    if (!startsProgram(entry.program)) {
        return Entry::Foreign;
    }
    return entry.isFor(currentDesktop().split(u':')) ? Entry::Ours : Entry::OtherDesktop;
}

/// Whatever it starts: by its name it is about this program. The first one that is there counts.
bool AutostartLoginItem::isStartedForAll(const QString &identifier) const
{
    const auto first = std::ranges::find_if(m_folders.shared,
        [&](const QString &folder) { return QFileInfo::exists(entryIn(folder, identifier)); });
    if (first == m_folders.shared.end()) {
        return false;
    }
    const AutostartEntry entry =
        AutostartEntry::read(contentOf(entryIn(*first, identifier)).value_or(QByteArray()));
    return !entry.command.isEmpty() && !entry.isSwitchedOff &&
           entry.isFor(currentDesktop().split(u':'));
}

bool AutostartLoginItem::startsProgram(const QString &program) const
{
    return program == m_program || QFileInfo(program).fileName() == QFileInfo(m_program).fileName();
}

/// So that nothing starts the program: where an entry for all users does, it is hidden.
bool AutostartLoginItem::takeOut(const QString &identifier) const
{
    const QString path = pathOf(identifier);
    if (isStartedForAll(identifier)) {
        return write(path, AutostartEntry::mask());
    }
    return !QFileInfo::exists(path) || QFile::remove(path);
}

} // namespace quillon
