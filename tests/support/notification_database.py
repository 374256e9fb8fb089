"""Makes the database of a notification service, and payloads as it stores them.

    notification_database.py database FILE new|old [ROWS]
    notification_database.py add FILE APPLICATION TITLE BODY
    notification_database.py payloads FOLDER
"""
import pathlib
import plistlib
import sqlite3
import sys
import uuid


def payload(value):
    return plistlib.dumps(value, fmt=plistlib.FMT_BINARY)


def request(title, subtitle=None, body=None):
    texts = {"titl": title, "subt": subtitle, "body": body}
    return payload({"app": "x", "req": {k: v for k, v in texts.items() if v is not None}})


def archive(notification, *objects):
    return payload({"$version": 100000, "$top": {"root": plistlib.UID(1)},
                    "$objects": ["$null", notification, *objects]})


def bomb():
    """Thirty arrays, each ten times the next: 10^29 texts once unpacked."""
    objects = [b"\xa0", b"\x51x"]
    for _ in range(30):
        objects.append(bytes([0xAA]) + bytes([len(objects) - 1] * 10))
    return raw(objects, len(objects) - 1)


def raw(objects, top):
    offsets, body = [], b"bplist00"
    for item in objects:
        offsets.append(len(body))
        body += item
    table = b"".join(o.to_bytes(4, "big") for o in offsets)
    return body + table + bytes(6) + bytes([4, 1]) + b"".join(
        n.to_bytes(8, "big") for n in (len(objects), top, len(body)))


PAYLOADS = {
    "request": request("Ada", "#general", "Are we on?"),
    "request_wide": request("Ада 🚀", None, "א‏ <b>é</b>\n\nx"),
    "request_untitled": request("", "sub", "text"),
    "request_wrong_types": payload({"req": {"titl": 7, "subt": ["x"], "body": b"x"}}),
    "request_text": payload({"req": "titl"}),
    "archive": archive({"NSTitle": 4, "NSSubtitle": 3, "NSInformativetext": 2}, "Body", "Sub", "Ada"),
    "archive_usual": archive({}, "Ada", "Body"),
    "archive_uids": archive({"NSTitle": plistlib.UID(3)}, "Two", "Three"),
    "archive_astray": archive({"NSTitle": 99, "NSSubtitle": -1, "NSInformativetext": 1}, "Two", "Three"),
    "archive_short": payload({"$objects": ["$null"]}),
    "empty": payload({}),
    "array": payload(["req", {"titl": "Ada"}]),
    "bomb": bomb(),
    "circle": raw([b"\xd1\x01\x00", b"\x53req"], 0),
    "beyond": raw([b"\xd1\x01\x07", b"\x53req"], 0),
    "overlap": raw([b"\xaf\x11\x00\x20" + b"\x00" * 32], 0)[:-32 - 4] + b"\0\0\0\x08" * 40
    + bytes(6) + bytes([4, 1]) + b"".join(n.to_bytes(8, "big") for n in (40, 0, 44)),
}


def create(file, schema, rows):
    base = sqlite3.connect(file)
    base.execute("CREATE TABLE app (app_id INTEGER PRIMARY KEY, identifier VARCHAR)")
    base.execute("CREATE TABLE record (rec_id INTEGER PRIMARY KEY, app_id INTEGER, uuid BLOB, "
                 "data BLOB, delivered_date REAL)")
    base.executemany("INSERT INTO app VALUES (?, ?)",
                     [(1, "com.tinyspeck.slackmacgap"), (2, "com.hnc.Discord"), (3, "com.other"),
                      (4, None)])
    every = [(1, uuid.UUID(int=1).bytes, PAYLOADS["request"], 10.5),
             (2, "a-text", PAYLOADS["archive"], 20),
             (2, None, PAYLOADS["empty"], 30),
             (3, "other", PAYLOADS["request"], 40),
             (4, "nobody", PAYLOADS["request"], 50),
             (7, "stray", PAYLOADS["request"], 60),
             (1, b"short", PAYLOADS["bomb"], 70),
             (1, "none", None, 80),
             (1, "hollow", b"", 90)]
    base.executemany("INSERT INTO record (app_id, uuid, data, delivered_date) VALUES (?, ?, ?, ?)",
                     every)
    base.executemany("INSERT INTO record (app_id, uuid, data, delivered_date) VALUES (?, ?, ?, ?)",
                     ((1 + i % 3, uuid.UUID(int=1000 + i).bytes, request(f"Title {i}", None, "Body " * 40),
                       100 + i) for i in range(rows)))
    if schema == "old":  # a record of as many parts as can be joined, so no application joins them
        base.execute("CREATE TABLE part AS SELECT 1 AS one")
        base.execute("ALTER TABLE record RENAME TO stored")
        base.execute("CREATE VIEW record AS SELECT app_id, uuid, data, delivered_date FROM stored"
                     + "".join(f" CROSS JOIN part p{i}" for i in range(63)))
    base.commit()


def main(command, target, *arguments):
    if command == "payloads":
        for name, data in PAYLOADS.items():
            (pathlib.Path(target) / name).write_bytes(data)
    elif command == "add":
        application, title, body = arguments
        base = sqlite3.connect(target)
        base.execute("INSERT INTO record (app_id, uuid, data, delivered_date) SELECT "
                     "(SELECT app_id FROM app WHERE identifier = ?), ?, ?, MAX(delivered_date) + 1 "
                     "FROM record", (application, uuid.uuid4().bytes, request(title, None, body)))
        base.commit()
    else:
        create(target, arguments[0], int(arguments[1]) if len(arguments) > 1 else 0)


main(*sys.argv[1:])
