// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/AccountFile.h"

#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype writerDigits = 16;
constexpr qsizetype numberDigits = 12;
constexpr quint64 highestNumber = (quint64{1} << 48) - 1;

/// "WRITER-NUMBER.change", "WRITER-NUMBER.part", "WRITER.snapshot", in lower case, because some
/// file systems know no other.
constexpr std::array<QStringView, 3> endings{u".change", u".snapshot", u".part"};

QString hexadecimal(quint64 number, qsizetype digits)
{
    return QString::number(number, 16).rightJustified(digits, u'0');
}

} // namespace

QString AccountFile::name() const
{
    QString name = hexadecimal(writer, writerDigits);
    if (kind != Kind::Snapshot) {
        name += u'-' + hexadecimal(number, numberDigits);
    }
    return name.append(endings[std::size_t(kind)]);
}

std::optional<AccountFile> AccountFile::fromName(const QString &name)
{
    AccountFile file;
    const QStringView text(name);
    for (const Kind kind : {Kind::Change, Kind::Snapshot, Kind::Part}) {
        if (!text.endsWith(endings[std::size_t(kind)])) {
            continue;
        }
        const QStringView stem = text.chopped(endings[std::size_t(kind)].size());
        bool isNumber = true;
        file.kind = kind;
        file.writer = stem.left(writerDigits).toULongLong(&isNumber, 16);
        if (kind != Kind::Snapshot) {
            file.number =
                stem.sliced(std::min(stem.size(), writerDigits + 1)).toULongLong(nullptr, 16);
        }
        // One spelling only, so two names are never one file.
        const bool isOurs = file.number <= highestNumber && file.name() == name &&
                            (kind != Kind::Change || file.number > 0);
        return isOurs ? std::optional(file) : std::nullopt;
    }
    return std::nullopt;
}

} // namespace quillon
