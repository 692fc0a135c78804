// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QNetworkRequest>

class QUrl;

namespace quillon {

/// Whether it is a whole address of http or https.
bool isWebAddress(const QUrl &url);

/// What is asked of a server at `url`, which learns nothing about the user by it: no password, no
/// language, and nothing of an earlier request. TLS 1.2 or later with a valid certificate; no
/// redirect is followed, and the body is to come unpacked.
QNetworkRequest webRequest(const QUrl &url);

} // namespace quillon
