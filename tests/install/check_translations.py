"""Fails, and tells what is missing, when a text of the sources has no translation, or one whose
placeholders differ.

    check_translations.py FILE.ts... -- LUPDATE ARGUMENTS...
"""

import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml
from pathlib import Path


def faults(message):
    source = message.findtext("source")
    translation = message.find("translation")
    forms = [form.text or "" for form in translation.findall("numerusform")] or [translation.text or ""]
    if translation.get("type") or not all(forms):
        yield "not translated"
    elif any(placeholders(form) != placeholders(source) for form in forms):
        yield f"other placeholders in “{' / '.join(forms)}”"


def placeholders(text):
    return sorted(re.findall(r"%(?:L?\d|n)", text))


def main():
    split = sys.argv.index("--")
    files, update = [Path(name) for name in sys.argv[1:split]], sys.argv[split + 1 :]
    found = []
    with tempfile.TemporaryDirectory(prefix="quillmere-") as folder:
        copies = [Path(shutil.copy(file, folder)) for file in files]
        subprocess.run([*update, "-ts", *map(str, copies)], check=True, capture_output=True)
        for copy in copies:
            for context in xml.parse(copy).getroot().iter("context"):
                for message in context.iter("message"):
                    where = f"{copy.name}: {context.findtext('name')}: “{message.findtext('source')}”"
                    found += [f"{where}: {fault}" for fault in faults(message)]
    if found:
        sys.exit("\n".join(found) + "\nbring them in: cmake --build build --target update-translations")


if __name__ == "__main__":
    main()
