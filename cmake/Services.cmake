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

# For the one file that puts the program together.
set(QUILLON_SERVICE_DEFINITIONS
    QUILLON_EXTERNAL_ADDRESS_HOST="${QUILLON_EXTERNAL_ADDRESS_HOST}"
    QUILLON_REGISTRY_URL="${QUILLON_REGISTRY_URL}")

# tools/sandbox stands in for these hosts.
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/services.txt" CONTENT
"QUILLON_EXTERNAL_ADDRESS_HOST=${QUILLON_EXTERNAL_ADDRESS_HOST}
QUILLON_REGISTRY_URL=${QUILLON_REGISTRY_URL}
")
