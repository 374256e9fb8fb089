"""Delivers mail as the formats define it, by an implementation of its own.

    deliver.py maildir|mbox PATH MESSAGE-ID FROM SUBJECT [FLAGS]
"""
import mailbox
import sys

kind, path, identifier, sender, subject, *flags = sys.argv[1:]
box = mailbox.Maildir(path) if kind == "maildir" else mailbox.mbox(path)
message = (mailbox.MaildirMessage if kind == "maildir" else mailbox.mboxMessage)()
message["From"] = sender
message["Subject"] = subject
message["Message-ID"] = f"<{identifier}>"
message.set_payload("Hello\n\nFrom here on it is text.\n")
if flags:
    message.set_flags(flags[0])
    if kind == "maildir":
        message.set_subdir("cur")
box.lock()
box.add(message)
box.flush()
box.unlock()
