// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/settings/XmlPropertyList.h"

#include <plist/plist.h>

#include <cstdlib>

namespace quillon::test {

/// `values` as another library writes them: by plist_to_xml or plist_to_bin.
template <typename Write>
QByteArray madeByAnotherLibrary(const QVariantMap &values, Write write)
{
    const QByteArray text = xmlPropertyList(values);
    plist_t root = nullptr;
    plist_from_xml(text.constData(), static_cast<uint32_t>(text.size()), &root);
    char *bytes = nullptr;
    uint32_t length = 0;
    write(root, &bytes, &length);
    const QByteArray result(bytes, static_cast<qsizetype>(length));
    std::free(bytes);
    plist_free(root);
    return result;
}

} // namespace quillon::test
