"""The public catalog for stories: its documents, and a server that has them."""

import collections
import json
import lzma
import os
import subprocess
import threading

FORMULAE = "formula.json"
CASKS = "cask.json"


def cache_of(home):
    """Where the program keeps the documents."""
    return f"{home}/.local/share/Quillmere/CatalogCache"


def records_in(file):
    with open(file, encoding="utf-8") as document:
        return json.load(document)


class Catalog:
    """Both documents, as files in a folder: the real ones if they are at hand, else made-up ones."""

    def __init__(self, make_up, real_data, folder):
        self.folder = folder
        os.makedirs(folder, exist_ok=True)
        packed = os.environ.get("QUILLMERE_REAL_DATA", real_data)
        if os.path.exists(f"{packed}/{FORMULAE}.xz"):
            for name in (FORMULAE, CASKS):
                with lzma.open(f"{packed}/{name}.xz") as source, open(f"{folder}/{name}", "wb") as copy:
                    copy.write(source.read())
        else:
            subprocess.run([make_up, folder, "2000"], check=True)
        self.formulae = records_in(f"{folder}/{FORMULAE}")
        self.casks = records_in(f"{folder}/{CASKS}")

    @property
    def count(self):
        return len(self.formulae) + len(self.casks)

    def remember(self, home):
        """Leaves the documents where an earlier start of the program would have kept them. What
        is there already stays, in front, and belongs to this catalog from now on."""
        kept = cache_of(home)
        os.makedirs(kept, exist_ok=True)
        self.formulae = self._joined(f"{kept}/{FORMULAE}", self.formulae, "name")
        self.casks = self._joined(f"{kept}/{CASKS}", self.casks, "token")

    @staticmethod
    def _joined(file, records, key):
        there = records_in(file) if os.path.exists(file) else []
        known = {record[key] for record in there}
        joined = there + [record for record in records if record[key] not in known]
        with open(file, "w", encoding="utf-8") as document:
            json.dump(joined, document, ensure_ascii=False)
        return joined

    def a_formula(self):
        """One that people look for: it has a few dependencies, and others depend on it."""
        names = {record["name"]: record for record in self.formulae}
        return names.get("wget") or names["package-15"]


    def the_most_needed(self):
        """The formula that most others depend on."""
        count = collections.Counter(name for record in self.formulae
                                    for name in record["dependencies"])
        names = {record["name"] for record in self.formulae}
        return next(name for name, _ in count.most_common() if name in names)

    def dependants_of(self, name):
        """In the order in which the program shows them."""
        return sorted(record["name"] for record in self.formulae if name in record["dependencies"])


class Server:
    """The host of the public catalog, behind a proxy of this machine."""

    def __init__(self, program, catalog, authority, piece=0, pause=1):
        self._process = subprocess.Popen(
            [program, "--authority", authority, "--piece", str(piece),
             "--pause", str(pause),
             f"/api/{FORMULAE}={catalog.folder}/{FORMULAE}", f"/api/{CASKS}={catalog.folder}/{CASKS}"],
            stdout=subprocess.PIPE, text=True,
        )
        port = self._process.stdout.readline().split()[1]
        self.variables = {
            "https_proxy": f"http://127.0.0.1:{port}",
            "no_proxy": "",
            "QUILLMERE_STORY_AUTHORITY": authority,
        }
        self.requests = []
        threading.Thread(target=self._listen, daemon=True).start()

    def _listen(self):
        for line in self._process.stdout:
            self.requests.append(line.strip())

    def stop(self):
        self._process.kill()
        self._process.wait()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.stop()
