// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/WiFiSecurity.h"

#include <algorithm>

namespace quillon {

namespace {

using Security = WiFiInterface::Security;

/// The kinds of authentication that an element offers.
struct Offer
{
    bool psk = false;
    bool sae = false;
    bool eap = false;
    bool eapSha256 = false;
    bool eapSha384 = false; ///< the 192-bit level and its kin, WPA3 only
    bool fils = false;
    bool owe = false;

    bool personal() const { return psk || sae; }
    bool enterprise() const { return eap || eapSha256 || eapSha384 || fils; }
};

// Suite types of 00-0F-AC, IEEE 802.11-2020 table 9-151 and IEEE 802.11be.
void addSuite(Offer &offer, quint32 suite)
{
    switch (suite) {
    case 0x0050F201: // WPA
    case 0x000FAC01:
    case 0x000FAC03: // fast transition
        offer.eap = true;
        break;
    case 0x0050F202: // WPA
    case 0x000FAC02:
    case 0x000FAC04: // fast transition
    case 0x000FAC06: // SHA-256
    case 0x000FAC13: // fast transition, SHA-384
    case 0x000FAC14: // SHA-384
        offer.psk = true;
        break;
    case 0x000FAC05:
        offer.eapSha256 = true;
        break;
    case 0x000FAC08:
    case 0x000FAC09: // fast transition
    case 0x000FAC18: // group-dependent hash
    case 0x000FAC19: // the same, fast transition
        offer.sae = true;
        break;
    case 0x000FAC0B: // Suite B
    case 0x000FAC0C: // Suite B, 192 bits
    case 0x000FAC0D: // fast transition, SHA-384
    case 0x000FAC16: // the same, for any cipher
    case 0x000FAC17: // SHA-384
        offer.eapSha384 = true;
        break;
    case 0x000FAC0E:
    case 0x000FAC0F:
    case 0x000FAC10:
    case 0x000FAC11:
        offer.fils = true;
        break;
    case 0x000FAC12:
        offer.owe = true;
        break;
    default:
        break;
    }
}

Offer offerOf(const std::optional<ProtectionSuites> &suites)
{
    Offer offer;
    if (suites) {
        for (const quint32 suite : suites->authentication) {
            addSuite(offer, suite);
        }
    }
    return offer;
}

bool isWepCipher(quint32 suite)
{
    return suite == 0x000FAC01 || suite == 0x000FAC05 || suite == 0x0050F201 || suite == 0x0050F205;
}

// Keys that change, in a cipher that does not: 802.1X in front of plain WEP.
bool isWepOnly(const std::optional<ProtectionSuites> &suites)
{
    const auto isWep = [&](quint32 suite) {
        const bool asGroup = suite == 0x000FAC00 || suite == 0x0050F200;
        return isWepCipher(asGroup ? suites->groupCipher : suite);
    };
    return !suites || std::ranges::all_of(suites->pairwiseCiphers, isWep);
}

Security personal(const InformationElements &elements, const Offer &rsn, const Offer &wpa)
{
    if (!elements.rsn) {
        return WiFiInterface::WPAPersonal;
    }
    if (rsn.psk && rsn.sae) {
        return WiFiInterface::WPA3Transition;
    }
    if (rsn.psk) {
        return wpa.psk ? WiFiInterface::WPAPersonalMixed : WiFiInterface::WPA2Personal;
    }
    return wpa.psk ? WiFiInterface::Personal : WiFiInterface::WPA3Personal;
}

Security enterprise(const InformationElements &elements, const Offer &rsn, const Offer &wpa)
{
    if (isWepOnly(elements.rsn) && isWepOnly(elements.wpa)) {
        return WiFiInterface::DynamicWEP;
    }
    if (!elements.rsn) {
        return WiFiInterface::WPAEnterprise;
    }
    const bool isVersion2 = rsn.eap || rsn.eapSha256;
    if (wpa.eap) {
        return isVersion2 || rsn.eapSha384 ? WiFiInterface::WPAEnterpriseMixed
                                           : WiFiInterface::Enterprise;
    }
    // WPA3's ordinary level is that of WPA2 with SHA-256 and frame protection, and nothing weaker.
    const bool isVersion3 = rsn.eapSha256 && elements.rsn->frameProtectionRequired;
    if (!rsn.eap && (isVersion3 || (rsn.eapSha384 && !rsn.eapSha256))) {
        return WiFiInterface::WPA3Enterprise;
    }
    return isVersion2 ? WiFiInterface::WPA2Enterprise : WiFiInterface::Enterprise;
}

Security unprotected(const InformationElements &elements, std::optional<bool> privacy)
{
    if (!elements.complete || elements.otherProtection || !privacy) {
        return WiFiInterface::UnknownSecurity;
    }
    return *privacy ? WiFiInterface::WEP : WiFiInterface::None;
}

} // namespace

WiFiInterface::Security security(const InformationElements &elements, std::optional<bool> privacy)
{
    if (!elements.rsn && !elements.wpa) {
        return unprotected(elements, privacy);
    }
    const Offer rsn = offerOf(elements.rsn);
    const Offer wpa = offerOf(elements.wpa);
    const bool intact = elements.complete && (!elements.rsn || elements.rsn->intact) &&
                        (!elements.wpa || elements.wpa->intact);
    const bool isPersonal = rsn.personal() || wpa.personal();
    const bool isEnterprise = rsn.enterprise() || wpa.enterprise();
    if (isPersonal && isEnterprise) {
        return WiFiInterface::UnknownSecurity;
    }
    if (isPersonal) {
        return intact ? personal(elements, rsn, wpa) : WiFiInterface::Personal;
    }
    if (isEnterprise) {
        return intact ? enterprise(elements, rsn, wpa) : WiFiInterface::Enterprise;
    }
    if (rsn.owe && intact) {
        return elements.oweTransition ? WiFiInterface::OWETransition : WiFiInterface::OWE;
    }
    return WiFiInterface::UnknownSecurity;
}

} // namespace quillon
