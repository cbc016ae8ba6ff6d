#!/usr/bin/env python3
"""Reads off mfc140u.dll how a class lies: its size and its virtual functions in their order.

usage: read-mfc.py DLL CLASS... [--names FILE]

Names come from mfc/real/mfc140u.def, or from a longer list of the same form ("NAME @ORDINAL" or "ORDINAL NAME").
The DLL folds equal functions into one, so a slot may show several names; one without an export shows its address.
"""
import argparse
import pathlib
import re
import struct


class Image:
    """A 64-bit PE file with its exports, addressed by offset from its base."""

    def __init__(self, path):
        self.data = pathlib.Path(path).read_bytes()
        header = self.u32(0x3C)
        optional = header + 24
        self.base = self.u64(optional + 24)
        count, size = struct.unpack_from("<H12xH", self.data, header + 6)
        table = optional + size
        self.sections = [struct.unpack_from("<8sIIII", self.data, table + 40 * i) for i in range(count)]
        exports = self.offset(self.u32(optional + 112))
        first, number = struct.unpack_from("<II", self.data, exports + 16)
        addresses = self.offset(self.u32(exports + 28))
        self.exports = {first + i: self.u32(addresses + 4 * i) for i in range(number)}

    def u32(self, at):
        return struct.unpack_from("<I", self.data, at)[0]

    def u64(self, at):
        return struct.unpack_from("<Q", self.data, at)[0]

    def offset(self, address):
        for _, _, start, size, raw in self.sections:
            if start <= address < start + size:
                return raw + address - start
        raise ValueError(hex(address))

    def is_code(self, pointer):
        name, _, start, size, _ = self.sections[0]
        return name.startswith(b".text") and start <= pointer - self.base < start + size

    def tables_with(self, address):
        """Addresses of virtual tables that begin with this function."""
        wanted = struct.pack("<Q", self.base + address)
        _, _, start, size, raw = next(s for s in self.sections if s[0].startswith(b".rdata"))
        at = self.data.find(wanted, raw, raw + size)
        while at >= 0:
            if at % 8 == 0:
                yield start + at - raw
            at = self.data.find(wanted, at + 1, raw + size)

    def slots(self, table):
        at = self.offset(table)
        while self.is_code(self.u64(at)):
            yield self.u64(at) - self.base
            at += 8


def read_names(path):
    names = {}
    for line in path.read_text().splitlines():
        match = re.match(r"\s*(?P<name>\?\S+) @(?P<ordinal>\d+)|(?P<ordinal2>\d+) (?P<name2>\?\S+)", line)
        if match:
            names[match["name"] or match["name2"]] = int(match["ordinal"] or match["ordinal2"])
    return names


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("dll")
    parser.add_argument("classes", nargs="+", metavar="CLASS")
    default = pathlib.Path(__file__).resolve().parent.parent / "mfc/real/mfc140u.def"
    parser.add_argument("--names", type=pathlib.Path, default=default)
    arguments = parser.parse_args()
    image = Image(arguments.dll)
    names = read_names(arguments.names)
    at = {}
    for name, ordinal in names.items():
        at.setdefault(image.exports[ordinal], []).append(name)

    for wanted in arguments.classes:
        # The function is "lea rax, [the class's description]; ret".
        describe = image.offset(image.exports[names[f"?GetThisClass@{wanted}@@SAPEAUCRuntimeClass@@XZ"]])
        description = image.exports[names[f"?GetThisClass@{wanted}@@SAPEAUCRuntimeClass@@XZ"]] + 7
        description += struct.unpack_from("<i", image.data, describe + 3)[0]
        print(f"{wanted}: {image.u32(image.offset(description) + 8)} bytes")
        first = image.exports[names[f"?GetRuntimeClass@{wanted}@@UEBAPEAUCRuntimeClass@@XZ"]]
        # Further finds are single pointers, or longer tables of classes that don't override the function.
        tables = [list(image.slots(table)) for table in image.tables_with(first)]
        table = min((slots for slots in tables if len(slots) >= 5), key=len, default=[])
        for number, slot in enumerate(table):
            found = at.get(slot, [])
            own = [name for name in found if f"@{wanted}@@" in name]
            print(f"  {number:3} {' | '.join(sorted(own or found)[:4]) or hex(slot)}")


main()
