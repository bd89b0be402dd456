#!/usr/bin/env python3
"""Writes tests/data/foreign-document.tamo: a single-document keyed archive laid out the way
Apple's archiver lays out mutable collections, mutable strings and decimal numbers, which Tamo's
own writer never produces. Run it from the repository root to regenerate the file."""
import plistlib
import struct

objects = ["$null"]


def add(obj):
    objects.append(obj)
    return plistlib.UID(len(objects) - 1)


def klass(name, *chain):
    return add({"$classname": name, "$classes": [name, *chain, "NSObject"]})


mdict = klass("NSMutableDictionary", "NSDictionary")
marray = klass("NSMutableArray", "NSArray")
mstring = klass("NSMutableString", "NSString")
decimal = klass("NSDecimalNumber", "NSNumber", "NSValue")
date = klass("NSDate")


def dictionary(pairs):
    keys = [add(k) for k in pairs]
    values = [v if isinstance(v, plistlib.UID) else add(v) for v in pairs.values()]
    return add({"NS.keys": keys, "NS.objects": values, "$class": mdict})


def dec(mantissa, exponent, negative=False):
    words = []
    while mantissa:
        words.append(mantissa & 0xFFFF)
        mantissa >>= 16
    raw = struct.pack("<8H", *(words + [0] * (8 - len(words))))
    return add({"NS.exponent": exponent, "NS.length": len(words), "NS.negative": negative,
                "NS.compact": True, "NS.mantissa.bo": 1, "NS.mantissa": raw, "$class": decimal})


item = dictionary({
    "class": "Item",
    "title": add({"NS.string": "Beratung", "$class": mstring}),
    "unitCount": dec(15, -1),
    "baseAmount": dec(1234567890123456789, -16),
    "isTax1Applied": True,
})
items = add({"NS.objects": [item], "$class": marray})
document = dictionary({
    "class": "Item",  # import makes it an invoice whatever it says
    "number": "RE-2019-042",
    "kind": 1,
    "amount": dec(11900, -2, negative=True),
    "date": add({"NS.time": 600000000.5, "$class": date}),
    "dAtEaTtr:due": 601209600.0,
    "items": items,
})
root = dictionary({"tamoDic": document})
archive = {"$version": 100000, "$archiver": "NSKeyedArchiver", "$top": {"root": root},
           "$objects": objects}
with open("tests/data/foreign-document.tamo", "wb") as f:
    plistlib.dump(archive, f, fmt=plistlib.FMT_BINARY)
