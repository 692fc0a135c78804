# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
quillon_room(xpcmethods
    SOURCES XPCMethods.cpp XPCMethods.h XPCMethods/Replies.cpp XPCMethods/Replies.h
    USES quillon_base quillon_platform
)
