// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CloudMessage.h"

#include "base/Localized.h"

namespace quillon {

QString cloudMessage(CloudProblem problem, CloudAccount::Kind kind)
{
    const bool isFolder = kind == CloudAccount::Kind::Folder;
    switch (problem) {
    case CloudProblem::WrongPassword:
        return localized("The server did not accept this name and password.");
    case CloudProblem::Unreachable:
        return isFolder ? localized("This folder is not there at the moment.")
                        : localized("The server cannot be reached.");
    case CloudProblem::UntrustedCertificate:
        return localized("The server's certificate is not trusted.");
    case CloudProblem::NotAllowed:
        return localized("This folder cannot be written.");
    case CloudProblem::Full:
        return isFolder ? localized("There is no space left in this folder.")
                        : localized("There is no space left in this account.");
    case CloudProblem::TooLarge:
        return localized("The account does not take files of this size.");
    case CloudProblem::NotAnAccount:
        // A second factor and the portal of a network end in a page as well.
        return isFolder ? localized("This is not a folder.")
                        : localized("The server shows no files at this address. If it asks for a "
                                    "second factor, use an app password.");
    case CloudProblem::NotThere:
    case CloudProblem::Changed:
    case CloudProblem::Failed:
        break;
    }
    return localized("The account did not work as expected. Try again later.");
}

} // namespace quillon
