#!/usr/bin/env python3
"""Sends files through the Quillon that runs, and tells what became of each: send.py FILE..."""
import json, pathlib, sys
from gi.repository import Gio, GLib

files = [pathlib.Path(file).absolute().as_uri() for file in sys.argv[1:]]
(entries,) = Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
    "dev.vostrel.quillon", "/dev/vostrel/quillon", "dev.vostrel.quillon", "Send",
    GLib.Variant("(assa{sv})", (files, "", {})), None, Gio.DBusCallFlags.NONE, GLib.MAXINT32)
for entry in json.loads(entries):
    print(entry["title"], entry.get("error", "sent to " + entry["topic"]), sep=": ")
