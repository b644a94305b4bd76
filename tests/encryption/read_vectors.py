#!/usr/bin/env python3
"""Opens what the encryption keeps, by docs/encryption.md and libsodium alone.

    read_vectors.py FOLDER      FOLDER: tests/cases/encryption-vectors
"""

import ctypes
import ctypes.util
import json
import pathlib
import struct
import sys
import unicodedata
import unittest

SODIUM = ctypes.CDLL(ctypes.util.find_library("sodium"))
SODIUM.sodium_init()
FOLDER = pathlib.Path(sys.argv.pop()) if len(sys.argv) > 1 else None
PIECE = 65536
ARGON2ID = 2
TAG_FINAL = 3


class Refused(Exception):
    """Something was not written so."""


def size(number):
    return ctypes.c_ulonglong(number)


def argon2id(password, salt, passes, kibibytes):
    key = ctypes.create_string_buffer(32)
    if SODIUM.crypto_pwhash(key, size(32), password, size(len(password)), salt, size(passes),
                            ctypes.c_size_t(kibibytes * 1024), ARGON2ID) != 0:
        raise MemoryError
    return key.raw


def subkey(key, context):
    made = ctypes.create_string_buffer(32)
    SODIUM.crypto_kdf_derive_from_key(made, ctypes.c_size_t(32), ctypes.c_uint64(1), context, key)
    return made.raw


def blake2b(data, length, key=b""):
    made = ctypes.create_string_buffer(length)
    SODIUM.crypto_generichash(made, ctypes.c_size_t(length), data, size(len(data)), key or None, ctypes.c_size_t(len(key)))
    return made.raw


def aead_open(box, nonce, key, associated):
    clear = ctypes.create_string_buffer(max(len(box) - 16, 1))
    length = ctypes.c_ulonglong()
    if SODIUM.crypto_aead_xchacha20poly1305_ietf_decrypt(clear, ctypes.byref(length), None, box, size(len(box)), associated,
                                                         size(len(associated)), nonce, key) != 0:
        raise Refused("sealed otherwise")
    return clear.raw[:length.value]


def require(holds, what):
    if not holds:
        raise Refused(what)


def open_password(data, password, identifier):
    """The master keys by name, and the name of the newest."""
    require(data[:9] == b"TARNKEYS\x01", "version")
    require(blake2b(data[:-16], 16) == data[-16:], "damaged")
    kind, passes, kibibytes = struct.unpack_from("<BII", data, 9)
    require(kind == 1 and 1 <= passes <= 10 and 8 <= kibibytes <= 1 << 20, "work")
    derived = argon2id(unicodedata.normalize("NFC", password).encode(), data[18:34], passes, kibibytes)
    require(blake2b(data[:34] + identifier, 32, subkey(derived, b"TarnPwCm")) == data[34:66], "wrong password")
    newest = data[66:82]
    keys = {newest: aead_open(data[106:154], data[82:106], subkey(derived, b"TarnPwWr"), data[:106] + identifier)}
    (count, ) = struct.unpack_from("<H", data, 154)
    require(len(data) == 156 + 88 * count + 48, "length")
    for index in range(count):
        entry = data[156 + 88 * index:156 + 88 * (index + 1)]
        keys[entry[:16]] = aead_open(entry[40:], entry[16:40], subkey(keys[newest], b"TarnRing"),
                                     b"\x01" + newest + entry[:16] + identifier)
    require(blake2b(data[:-48], 32, subkey(keys[newest], b"TarnRSum")) == data[-48:-16], "ring")
    return keys, newest


def padded(length):
    least = max(length, 256)
    exponent = least.bit_length() - 1
    mask = (1 << (exponent - exponent.bit_length())) - 1
    return (least + mask) & ~mask


def open_record(data, kind, identifier, keys):
    """The fields by number, and the object key."""
    require(data[:10] == b"TARNSEAL\x01" + bytes([kind]), "version or kind")
    key = aead_open(data[50:98], data[26:50], subkey(keys[data[10:26]], b"TarnObjK"), data[:50] + identifier)
    require(blake2b(data[:98] + identifier, 32, subkey(key, b"TarnObjC")) == data[98:130], "another key")
    clear = aead_open(data[154:], data[130:154], subkey(key, b"TarnFlds"), data[:154] + b"fields" + identifier)
    fields, at = {}, 0
    while at < len(clear) and clear[at]:
        (length, ) = struct.unpack_from("<I", clear, at + 1)
        fields[clear[at]] = clear[at + 5:at + 5 + length]
        at += 5 + length
    require(not any(clear[at:]) and len(clear) == padded(at), "padding")
    return fields, key


def open_file(data, identifier, key):
    require(data[:9] == b"TARNFILE\x01", "version")
    state = ctypes.create_string_buffer(SODIUM.crypto_secretstream_xchacha20poly1305_statebytes())
    SODIUM.crypto_secretstream_xchacha20poly1305_init_pull(state, data[9:33], subkey(key, b"TarnFile"))
    stream, number, tag = b"", 0, None
    for at in range(33, len(data), PIECE + 17):
        require(tag != TAG_FINAL, "behind the end")
        box = data[at:at + PIECE + 17]
        clear, got = ctypes.create_string_buffer(len(box)), ctypes.c_ubyte()
        associated = b"\x01\x02file" + struct.pack("<Q", number) + identifier
        require(SODIUM.crypto_secretstream_xchacha20poly1305_pull(state, clear, None, ctypes.byref(got), box, size(len(box)),
                                                                  associated, size(len(associated))) == 0, "piece")
        stream, number, tag = stream + clear.raw[:len(box) - 17], number + 1, got.value
    require(tag == TAG_FINAL, "no end")
    kind, length = struct.unpack_from("<BQ", stream)
    require(not any(stream[9 + length:]) and len(stream) == padded(9 + length), "padding")
    return kind, stream[9:9 + length]


class Vectors(unittest.TestCase):
    def setUp(self):
        self.said = json.loads((FOLDER / "vectors.json").read_text(encoding="utf-8"))
        self.blob = (FOLDER / "password").read_bytes()

    def identifier(self, whose):
        return self.said[whose + "Identifier"].encode()

    def keys(self):
        return open_password(self.blob, self.said["password"], self.identifier("password"))[0]

    def test_the_password_opens_its_keys(self):
        self.assertEqual(len(self.keys()), self.said["formerKeys"] + 1)

    def test_another_password_opens_nothing(self):
        with self.assertRaisesRegex(Refused, "wrong password"):
            open_password(self.blob, self.said["password"] + "x", self.identifier("password"))

    def test_the_note(self):
        fields, _ = open_record((FOLDER / "note").read_bytes(), 1, self.identifier("note"), self.keys())
        self.assertEqual(fields, {1: self.said["text"].encode()})

    def test_the_attachment(self):
        fields, key = open_record((FOLDER / "attachment").read_bytes(), 2, self.identifier("attachment"), self.keys())
        self.assertEqual(fields, {2: self.said["filename"].encode(), 3: self.said["extension"].encode(),
                                  4: struct.pack("<q", self.said["fileSize"]), 5: self.said["searchText"].encode()})
        kind, content = open_file((FOLDER / "file").read_bytes(), self.identifier("attachment"), key)
        self.assertEqual(kind, 1)
        self.assertEqual(content, bytes(index * 7 % 251 for index in range(self.said["fileSize"])))

    def test_damage_is_refused(self):
        for name in ("password", "note", "attachment", "file"):
            data = bytearray((FOLDER / name).read_bytes())
            data[len(data) // 2] ^= 1
            _, key = open_record((FOLDER / "attachment").read_bytes(), 2, self.identifier("attachment"), self.keys())
            with self.subTest(name), self.assertRaises(Refused):
                {"password": lambda d: open_password(d, self.said["password"], self.identifier("password")),
                 "note": lambda d: open_record(d, 1, self.identifier("note"), self.keys()),
                 "attachment": lambda d: open_record(d, 2, self.identifier("attachment"), self.keys()),
                 "file": lambda d: open_file(d, self.identifier("attachment"), key)}[name](bytes(data))


if __name__ == "__main__":
    unittest.main()
