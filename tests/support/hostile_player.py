"""A media player that lies, on the session bus.

A number on standard input makes it the player of that kind, announces a change, and is printed once the new state
has been asked for; "good" likewise, and "art <url>", which is good with a picture. "vanish" leaves the bus in the middle of the next call; "storm <n>" announces n
changes, about a thousand a second, and prints how often it was asked meanwhile. The first line printed is the number
of kinds.
"""

import itertools
import sys
import time

import dbus
import dbus.lowlevel
import dbus.mainloop.glib
from gi.repository import GLib

PLAYER = "org.mpris.MediaPlayer2.Player"
PATH = "/org/mpris/MediaPlayer2"


def nested(depth):
    value = dbus.Int32(1)
    for _ in range(depth):
        value = dbus.Struct([value])
    return value


# None of them is a text.
SENSELESS = [
    dbus.Boolean(True), dbus.Byte(200), dbus.Int16(-1), dbus.Int32(-(2**31)), dbus.UInt32(2**32 - 1),
    dbus.Int64(-(2**63)), dbus.Int64(2**63 - 1), dbus.UInt64(2**64 - 1), dbus.Double("nan"), dbus.Double("-inf"),
    dbus.Double(1e300), dbus.Signature("a{sv}"), dbus.Array([], "i"), dbus.Array([1] * 70000, "i"),
    dbus.Array([{"a": dbus.Array(["b"], "s")}], "a{sas}"), dbus.ByteArray(b"\0\xff" * 9), nested(30),
    dbus.Dictionary({"a": dbus.Dictionary({"b": 1}, "sv")}, "sa{sv}"), dbus.Dictionary({}, "is"),
    dbus.Array([dbus.String("a")] * 3000, "v"),
]  # fmt: skip
TEXTS = [
    dbus.String(""), dbus.String("a\u202e\u0001\uffff\n" * 300_000), dbus.String("file:///dev/zero"),
    dbus.String("data:image/png;base64," + "A" * 3_000_000), dbus.ObjectPath("/a"),
    dbus.Array([dbus.String("")] * 5000, "s"),
]  # fmt: skip
KEYS = ["mpris:trackid", "mpris:length", "mpris:artUrl", "xesam:artist", "xesam:albumArtist", "xesam:url", "kde:pid"]
PROPERTIES = ["PlaybackStatus", "Rate", "Position", "CanSeek"]


def good():
    metadata = {
        "xesam:title": "Good",
        "xesam:artist": dbus.Array(["One", "Two"], "s"),
        "mpris:length": dbus.Int64(60_000_000),
        "mpris:trackid": dbus.ObjectPath("/track/1"),
    }
    return {
        "PlaybackStatus": "Paused",
        "Rate": 1.0,
        "Position": dbus.Int64(1_500_000),
        "CanSeek": True,
        "Shuffle": False,
        "Metadata": dbus.Dictionary(metadata, "sv"),
    }


def with_key(key, value):
    state = good()
    state["Metadata"][key] = value
    return [dbus.Dictionary(state, "sv")]


def with_property(name, value):
    return [dbus.Dictionary(good() | {name: value}, "sv")]


KINDS = [with_key(key, value) for key, value in itertools.product(KEYS, SENSELESS + TEXTS)]
KINDS += [with_key("xesam:title", value) for value in SENSELESS]
KINDS += [with_property("Metadata", value) for value in SENSELESS + TEXTS]
KINDS += [with_property(name, value) for name, value in itertools.product(PROPERTIES, SENSELESS)]
KINDS += [[value] for value in SENSELESS]
KINDS += [[], ["a", "b"], [dbus.Dictionary({}, "sv")], None, "error"]


class Player:
    def __init__(self, loop):
        self.loop = loop
        self.answer = [dbus.Dictionary(good(), "sv")]
        self.note = self.vanishing = None
        self.asked = 0
        self.bus = dbus.SessionBus()
        self.bus.set_exit_on_disconnect(False)
        self.bus.add_message_filter(self.filter)
        self.bus.request_name("org.mpris.MediaPlayer2.hostile")

    def filter(self, bus, message):
        if message.get_type() != 1 or message.get_path() != PATH:
            return dbus.lowlevel.HANDLER_RESULT_NOT_YET_HANDLED
        if self.vanishing:
            self.bus.close()
            self.loop.quit()
        elif message.get_member() == "GetAll" and message.get_args_list()[0] == PLAYER:
            self.asked += 1
            self.reply(message, self.answer)
            if self.note is not None:
                print(self.note, flush=True)
                self.note = None
        elif message.get_member() == "Get":
            known = self.answer[0] if isinstance(self.answer, list) and self.answer else None
            value = known.get(message.get_args_list()[1]) if isinstance(known, dict) else None
            self.reply(message, [value] if value is not None else "error")
        elif message.get_member() == "Set":
            _, name, value = message.get_args_list()
            self.answer = [dbus.Dictionary(good() | {name: value}, "sv")]
            self.reply(message, [])
        else:
            self.reply(message, "error")
        return dbus.lowlevel.HANDLER_RESULT_HANDLED

    def reply(self, message, arguments):
        if arguments == "error":
            self.bus.send_message(dbus.lowlevel.ErrorMessage(message, "org.example.No", "\x1b[31mno\n"))
        elif arguments is not None:
            reply = dbus.lowlevel.MethodReturnMessage(message)
            if arguments:
                reply.append(*arguments)
            self.bus.send_message(reply)

    def announce(self, *arguments, signature=None):
        signal = dbus.lowlevel.SignalMessage(PATH, "org.freedesktop.DBus.Properties", "PropertiesChanged")
        signal.append(*arguments, signature=signature)
        self.bus.send_message(signal)

    def command(self, source, _):
        word, *rest = source.readline().split() or ["vanish"]
        if word == "storm":
            self.storm(int(rest[0]))
            return True
        self.vanishing = word == "vanish"
        self.note = word
        self.answer = KINDS[int(word)] if word.isdigit() else with_key("mpris:artUrl", "".join(rest))
        wrong = SENSELESS[int(word) % len(SENSELESS)] if word.isdigit() else dbus.Dictionary({}, "sv")
        seek = dbus.lowlevel.SignalMessage(PATH, PLAYER, "Seeked")
        if word.isdigit():
            seek.append(wrong)
            self.bus.send_message(seek)
        self.announce(PLAYER, wrong)
        return True

    def storm(self, count):
        self.asked = 0
        begin = time.monotonic()
        for number in range(count):
            self.announce(PLAYER, dbus.Dictionary({"Rate": number % 3 + 1.0}, "sv"), dbus.Array([], "s"))
            while time.monotonic() < begin + number / 1000:
                self.loop.get_context().iteration(False)
        print(self.asked, flush=True)


if __name__ == "__main__":
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    main_loop = GLib.MainLoop()
    player = Player(main_loop)
    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, player.command)
    print(len(KINDS), flush=True)
    main_loop.run()
