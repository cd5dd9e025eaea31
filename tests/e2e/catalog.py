"""The public catalog for stories: its documents, and a server that has them."""

import json
import lzma
import os
import shutil
import subprocess
import threading

FORMULAE = "formula.json"
CASKS = "cask.json"


def cache_of(home):
    """Where the program keeps the documents."""
    return f"{home}/.local/share/Quillmere/CatalogCache"


class Catalog:
    """Both documents, as files in a folder: the real ones if they are at hand, else made-up ones."""

    def __init__(self, tools, real_data, folder):
        self.folder = folder
        os.makedirs(folder, exist_ok=True)
        packed = os.environ.get("QUILLMERE_REAL_DATA", real_data)
        if os.path.exists(f"{packed}/{FORMULAE}.xz"):
            for name in (FORMULAE, CASKS):
                with lzma.open(f"{packed}/{name}.xz") as source, open(f"{folder}/{name}", "wb") as copy:
                    copy.write(source.read())
        else:
            subprocess.run([f"{tools}/made_up_catalog", folder, "2000"], check=True)
        self.formulae = self._records(FORMULAE)
        self.casks = self._records(CASKS)

    def _records(self, name):
        with open(f"{self.folder}/{name}", encoding="utf-8") as document:
            return json.load(document)

    @property
    def count(self):
        return len(self.formulae) + len(self.casks)

    def remember(self, home):
        """Leaves the documents where an earlier start of the program would have kept them."""
        kept = cache_of(home)
        os.makedirs(kept)
        for name in (FORMULAE, CASKS):
            shutil.copy(f"{self.folder}/{name}", kept)

    def a_formula(self):
        """One that people look for: it has a few dependencies, and others depend on it."""
        names = {record["name"]: record for record in self.formulae}
        return names.get("wget") or names["package-15"]


class Server:
    """The host of the public catalog, behind a proxy of this machine."""

    def __init__(self, tools, catalog, authority, piece=0, pause=1):
        self._process = subprocess.Popen(
            [f"{tools}/catalog_server", "--authority", authority, "--piece", str(piece),
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
