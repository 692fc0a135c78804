# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The public servers that the program asks. Whoever builds it may name others that answer the same.

# Answers an HTTPS GET of "/?format=json" with a JSON object whose "ip" is the asker's address.
set(QUILLON_EXTERNAL_ADDRESS_HOST "api.ipify.org" CACHE STRING
    "Host that says under which address the internet sees us")
# The registration authority's public MA-L registry, a CSV file.
set(QUILLON_REGISTRY_URL "https://standards-oui.ieee.org/oui/oui.csv" CACHE STRING
    "Where the vendor registry is downloaded from")

if(NOT QUILLON_EXTERNAL_ADDRESS_HOST MATCHES "^[A-Za-z0-9.-]+$")
    message(FATAL_ERROR "QUILLON_EXTERNAL_ADDRESS_HOST is a host name, not \"${QUILLON_EXTERNAL_ADDRESS_HOST}\"")
endif()
if(NOT QUILLON_REGISTRY_URL MATCHES "^https://[A-Za-z0-9.-]+/[^\"\\ ]*$")
    message(FATAL_ERROR "QUILLON_REGISTRY_URL is an https address, not \"${QUILLON_REGISTRY_URL}\"")
endif()

# Where new versions are told of: a list of them over https, and the Ed25519 key (32 bytes in Base64) under
# which it is signed (docs/updates.md). Without both a build looks for nothing, and says so. A package of a
# distribution, whose updates come from there, switches it off.
option(QUILLON_UPDATES "Look for new versions, where the user wants it" ON)
set(QUILLON_UPDATE_FEED "" CACHE STRING "Address of the list of versions")
set(QUILLON_UPDATE_KEY "" CACHE STRING "Public key of those who sign the list of versions")
if(NOT QUILLON_UPDATE_FEED MATCHES "^(https://[A-Za-z0-9.-]+(:[0-9]+)?/[^\"\\ ]*)?$")
    message(FATAL_ERROR "QUILLON_UPDATE_FEED is an https address, not \"${QUILLON_UPDATE_FEED}\"")
endif()
if(NOT QUILLON_UPDATE_KEY MATCHES "^([A-Za-z0-9+/]+=)?$")
    message(FATAL_ERROR "QUILLON_UPDATE_KEY is a key in Base64, not \"${QUILLON_UPDATE_KEY}\"")
endif()
string(LENGTH "${QUILLON_UPDATE_KEY}" key_length)
if(NOT key_length EQUAL 0 AND NOT key_length EQUAL 44)
    message(FATAL_ERROR "QUILLON_UPDATE_KEY has 44 characters, not ${key_length}")
endif()
if(QUILLON_UPDATE_FEED AND NOT QUILLON_UPDATE_KEY)
    message(FATAL_ERROR "QUILLON_UPDATE_FEED needs QUILLON_UPDATE_KEY: nobody else's list is believed")
endif()
set(update_feed "")
set(update_key "")
set(updates_left_to_system true)
if(QUILLON_UPDATES)
    set(updates_left_to_system false)
    set(update_feed "${QUILLON_UPDATE_FEED}")
    set(update_key "${QUILLON_UPDATE_KEY}")
endif()
# A software center knows what a package has put below /usr.
set(is_packaged false)
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(is_packaged true)
endif()

# For the one file that puts the program together.
set(QUILLON_SERVICE_DEFINITIONS
    QUILLON_EXTERNAL_ADDRESS_HOST="${QUILLON_EXTERNAL_ADDRESS_HOST}"
    QUILLON_REGISTRY_URL="${QUILLON_REGISTRY_URL}"
    QUILLON_UPDATE_FEED="${update_feed}"
    QUILLON_UPDATE_KEY="${update_key}"
    QUILLON_UPDATES_LEFT_TO_SYSTEM=${updates_left_to_system}
    QUILLON_IS_PACKAGED=${is_packaged})

# tools/sandbox stands in for these hosts.
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/services.txt" CONTENT
"QUILLON_EXTERNAL_ADDRESS_HOST=${QUILLON_EXTERNAL_ADDRESS_HOST}
QUILLON_REGISTRY_URL=${QUILLON_REGISTRY_URL}
")
