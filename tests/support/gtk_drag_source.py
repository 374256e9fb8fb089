"""A GTK window that drags text, or the given URLs <times> over; prints when each begins and ends."""

import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gtk  # noqa: E402

text, times, *urls = sys.argv[1:]
window = Gtk.Window(default_width=200, default_height=200)
window.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [], Gdk.DragAction.COPY)
if urls:
    window.drag_source_add_uri_targets()
    numbered = [url + str(i) for i in range(int(times)) for url in urls] if int(times) > 1 else urls
    window.connect("drag-data-get", lambda w, c, data, *_: data.set_uris(numbered))
else:
    window.drag_source_add_text_targets()
    window.connect("drag-data-get", lambda w, c, data, *_: data.set_text(text, -1))
window.connect("drag-begin", lambda *_: print("begun", flush=True))
window.connect("drag-end", lambda *_: print("done", flush=True))
window.connect("map-event", lambda *_: print("ready", flush=True))
window.move(100, 300)
window.show_all()
Gtk.main()
