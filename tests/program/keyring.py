"""The real keyring on the desktop's session bus, unlocked."""

import subprocess

from desktop import wait_until


class Keyring:
    """Has to be there before the program asks it for something."""

    def __init__(self, desktop):
        self._desktop = desktop
        command = ["gnome-keyring-daemon", "--foreground", "--unlock", "--components=secrets"]
        daemon = desktop.spawn(command, "keyring.log", stdin=subprocess.PIPE, text=True)
        daemon.stdin.write("password")
        daemon.stdin.close()
        default = ["dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.secrets",
                   "/org/freedesktop/secrets", "org.freedesktop.Secret.Service.ReadAlias", "string:default"]  # fmt: skip
        wait_until(lambda: "collection/login" in desktop.run(*default, check=False), what="the keyring")

    def store(self, service, account, secret):
        """As the program itself keeps its secrets."""
        attributes = ["xdg:schema", "org.qt.keychain", "server", service, "user", account, "type", "plaintext"]
        self._desktop.run("secret-tool", "store", "--label=Quillmere", *attributes, text=secret)

    def lookup(self, service, account):
        """The secret, or nothing."""
        return self._desktop.run("secret-tool", "lookup", "server", service, "user", account, check=False)

    def lock(self):
        collection = "array:objpath:/org/freedesktop/secrets/collection/login"
        self._desktop.run("dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.secrets",
                          "/org/freedesktop/secrets", "org.freedesktop.Secret.Service.Lock", collection)  # fmt: skip
