# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Looks for what must not be readable, in whatever way a program may have put it."""
import base64
import os
import re
import zlib

UNPACKED = 65536  # bytes that are looked at behind each place where something packed may begin
SHORTEST = 6  # what is shorter is found by chance


def spellings(text):
    """As bytes; of an address in each of its forms."""
    found = set()
    for variant in {text, text.lower(), text.upper()}:
        for encoding in ("utf-8", "utf-16-le", "utf-16-be", "latin-1"):
            try:
                found |= forms(variant.encode(encoding))
            except UnicodeEncodeError:
                pass
    if re.fullmatch(r"([0-9A-Fa-f]{1,2}:){5}[0-9A-Fa-f]{1,2}", text):
        octets = [int(octet, 16) for octet in text.split(":")]
        raw = bytes(octets)
        digits = raw.hex()
        found |= {raw, raw[::-1]} | forms(raw)
        for spelled in (":".join(f"{octet:x}" for octet in octets), *(raw.hex(mark) for mark in ":- ."),
                        f"{digits[:4]}.{digits[4:8]}.{digits[8:]}", digits):
            found |= {spelled.encode(), spelled.upper().encode(), spelled.encode("utf-16-le")}
    return found


def forms(raw):
    """The bytes, and what programs make of bytes: hexadecimal digits, Base64 at each place within other bytes."""
    found = {raw, raw.hex().encode(), raw.hex().upper().encode()}
    for shift in range(3):
        # The letters that depend on nothing but these bytes.
        whole = base64.b64encode(b"\0" * shift + raw)
        kept = whole[(0, 2, 3)[shift]:len(whole) - (0 if (shift + len(raw)) % 3 == 0 else 4)]
        found |= {kept, kept.replace(b"+", b"-").replace(b"/", b"_")}
    return {form for form in found if len(form) >= SHORTEST}


def unpacked(data):
    """All that comes out of the places at which something packed by zlib may begin, with its frame or without."""
    found = []
    for start in range(len(data)):
        for kind in (zlib.MAX_WBITS, -zlib.MAX_WBITS, zlib.MAX_WBITS | 16):
            unpacking = zlib.decompressobj(kind)
            out = bytearray()
            try:
                for place in range(start, len(data), 256):
                    out += unpacking.decompress(data[place:place + 256], UNPACKED)
                    if unpacking.eof or len(out) > UNPACKED:
                        break
            except zlib.error:
                pass
            if len(out) >= SHORTEST:
                found.append(bytes(out))
    return b"\0\0".join(found)


def find(words, files, packed=True):
    """Which of the texts or bytes are in which of the files (path → bytes), their paths included."""
    wanted = {form: word for word in words for form in (forms(word) if isinstance(word, bytes) else spellings(word))}
    found = set()
    for path, data in files.items():
        content = b"\0\0".join([path.encode(), data, unpacked(data) if packed else b""])
        found |= {(wanted[form], path) for form in wanted if form in content}
    return sorted(found, key=str)


def files_in(folder):
    """Path, from there on, and bytes of every file; not of what is mounted there."""
    found = {}
    for place, folders, names in os.walk(folder):
        folders[:] = [name for name in folders if not os.path.ismount(os.path.join(place, name))]
        for name in names:
            path = os.path.join(place, name)
            if os.path.isfile(path) and not os.path.islink(path):
                with open(path, "rb") as file:
                    found[os.path.relpath(path, folder)] = file.read()
    return found
