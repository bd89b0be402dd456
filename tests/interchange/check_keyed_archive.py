#!/usr/bin/env python3
"""Reads a keyed archive with Python's plistlib, checks the layout that Apple's unarchiver
expects, resolves the object graph and compares it with a plain property list of the same data.

    check_keyed_archive.py ARCHIVE EXPECTED.plist

Prints "same" and exits 0 when they match; otherwise prints what differs and exits 1."""
import datetime
import plistlib
import sys

REFERENCE = datetime.datetime(2001, 1, 1)


def fail(message):
    print(message)
    sys.exit(1)


def resolve(objects, uid, seen):
    if not isinstance(uid, plistlib.UID):
        fail(f"expected a UID, found {uid!r}")
    if uid.data == 0:
        return None
    if uid.data in seen:
        fail(f"object {uid.data} contains itself")
    obj = objects[uid.data]
    if not isinstance(obj, dict):
        return obj
    record = objects[obj["$class"].data]
    if set(record) != {"$classname", "$classes"} or record["$classes"][0] != record["$classname"]:
        fail(f"malformed class record {record!r}")
    name = record["$classname"]
    seen = seen | {uid.data}
    if name == "NSDictionary":
        keys = [resolve(objects, k, seen) for k in obj["NS.keys"]]
        values = [resolve(objects, v, seen) for v in obj["NS.objects"]]
        if not all(isinstance(k, str) for k in keys):
            fail("a dictionary key is not a string")
        return dict(zip(keys, values))
    if name == "NSArray":
        return [resolve(objects, v, seen) for v in obj["NS.objects"]]
    if name == "NSDate":
        return REFERENCE + datetime.timedelta(seconds=obj["NS.time"])
    fail(f"unexpected class {name}")


def main():
    with open(sys.argv[1], "rb") as f:
        data = f.read()
    if not data.startswith(b"bplist00"):
        fail("not a binary property list")
    archive = plistlib.loads(data)
    if archive.get("$archiver") != "NSKeyedArchiver" or archive.get("$version") != 100000:
        fail("wrong $archiver or $version")
    objects = archive["$objects"]
    if objects[0] != "$null":
        fail("$objects does not begin with $null")
    graph = resolve(objects, archive["$top"]["root"], frozenset())
    with open(sys.argv[2], "rb") as f:
        expected = plistlib.load(f)
    if graph != expected:
        print("archive:  ", graph)
        print("expected: ", expected)
        sys.exit(1)
    print("same")


main()
