#!/usr/bin/env python3
"""Kills a silent run at random moments, lets it go on, and holds what it promises.

usage: kills.py BUILD-FOLDER KILLS [DOCUMENTS]   (inside with-wine.sh, in an empty folder)

After each kill every file is wholly old or wholly new; after the next run every document is signed exactly once,
uploaded, logged once and reported in the return file. Further: two runs at once, of which one is refused, and a
disk that is full (where this user may mount one).
"""
import collections
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import time
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
HERE = pathlib.Path.cwd()
RESOLVED, BUSY = 0, 6


def fail(text):
    sys.exit(f"kills: {text} (the folder is kept: {HERE})")


class Place:
    """An installation, a folder server with numbered drawings, and a message about all of them."""

    def __init__(self, build, documents):
        self.build = build
        self.app = HERE / "app"
        self.app.mkdir()
        for name in [*build.glob("bin/*.dll"), *build.glob("bin/varnoke-*.exe"), build / "bin/ModelConfig.Xml"]:
            shutil.copy(name, self.app)
        self.run_program("varnoke-samples.exe", ".").wait()
        shutil.copy("Varnoke.ini", self.app)
        drawing = sorted(pathlib.Path("vault/files").glob("*.dwg"))[0].read_bytes()
        self.names = [f"图纸 {number}.dwg" for number in range(documents)]
        (HERE / "drawing.dwg").write_bytes(drawing)
        message = pathlib.Path("message.xml").read_text(encoding="utf-8")
        head, rest = message.split('<type id="DRAWING">')
        sample = re.search(r"<obj>.*?</obj>", rest, re.S)[0]
        objects = [
            sample.replace("D-1001", f"D-{number}").replace("泵体装配图.dwg", name)
            for number, name in enumerate(self.names)
        ]
        text = f'{head}<type id="DRAWING">{"".join(objects)}</type></objs></root>'
        pathlib.Path("message.xml").write_text(text, encoding="utf-8")

    def reset(self):
        for folder in ("work", "vault/files", "vault/signlog"):
            shutil.rmtree(folder, ignore_errors=True)
            pathlib.Path(folder).mkdir(parents=True)
        for name in self.names:
            shutil.copy("drawing.dwg", pathlib.Path("vault/files", name))
        # Slow enough to be met at every step.
        pathlib.Path("vault/Durvell.ini").write_text("[Fault]\r\nDelayMs=60\r\n")
        for file in ("journal.log", "return_Ret.Xml", "vault/journal.log"):
            pathlib.Path(file).unlink(missing_ok=True)

    def run_program(self, program, *arguments, **options):
        environment = dict(os.environ, SIGNSERVER_JOURNAL="Z:" + str(HERE / "journal.log").replace("/", "\\"))
        options.setdefault("stdout", subprocess.DEVNULL)
        with open("errors.txt", "wb") as errors:
            command = [ROOT / "scripts/wine-run.sh", self.build, self.app / program, *arguments]
            return subprocess.Popen(command, env=environment, stderr=errors, **options)

    def sign(self, work="work", **options):
        arguments = ["--message", "message.xml", "--vault", "vault", "--work", work, "--return", "return.xml"]
        return self.run_program("varnoke-host.exe", "back-sign", *arguments, **options)


def check_whole_files():
    """Whatever was being written when the process ended."""
    files = list(pathlib.Path("work/SignData").glob("*")) + list(pathlib.Path(".").glob("*_Ret.Xml"))
    for file in files:
        if file.name.startswith("~") or file.suffix.lower() not in (".xml", ".ini"):
            continue  # temporary files, locks, and notes of which whole lines count
        content = file.read_bytes()
        if file.suffix.lower() == ".xml":
            try:
                xml.etree.ElementTree.fromstring(content)
            except xml.etree.ElementTree.ParseError as error:
                fail(f"{file} is not whole: {error}")
        else:
            text = content.decode("utf-16" if content[:2] == b"\xff\xfe" else "gbk")
            lines = text.splitlines()
            if not lines or not lines[0].startswith("[") or not text.endswith("\n"):
                fail(f"{file} is not whole")


def valid_signatures(journal):
    """Signatures that stand, by document identifier."""
    standing = collections.Counter()
    for line in journal.splitlines():
        fields = line.split("\t")
        if fields[1] == "Sign" and fields[-1] == "=> 1":
            standing[fields[2]] += 1
        elif fields[1] == "SignatureDelete":
            # The stand-in forgets its signatures with its process and so finds none to delete.
            standing[fields[2]] = 0
    return standing


def check_finished(place, moment):
    identifiers = [f"D-{number}" for number in range(len(place.names))]
    signatures = valid_signatures(pathlib.Path("journal.log").read_text(encoding="utf-8"))
    for identifier in identifiers:
        if signatures[identifier] != 1:
            fail(f"killed {moment}: {identifier} has {signatures[identifier]} signatures")
    logged = collections.Counter()
    for file in pathlib.Path("vault/signlog").glob("*.xml"):
        for pro in xml.etree.ElementTree.parse(file).getroot().iterfind("obj/pro[@name='QORMFILEID']"):
            logged[pro.get("value")] += 1
    for identifier in identifiers:
        if logged[identifier] < 1:
            fail(f"killed {moment}: {identifier} is not in the log")
    returned = xml.etree.ElementTree.parse("return_Ret.Xml").getroot()
    signed = returned.findall(".//pro[@name='SignRet'][@value='1']")
    if len(signed) != len(identifiers):
        fail(f"killed {moment}: {len(signed)} of {len(identifiers)} documents are returned as signed")
    left = [file.name for file in pathlib.Path("work/SignData").glob("*") if re.search(r"~|unsent|before", file.name)]
    if left:
        fail(f"killed {moment}: left behind: {left}")


def undisturbed(place):
    """Seconds of a run that nobody kills."""
    place.reset()
    begin = time.monotonic()
    if place.sign().wait() != RESOLVED:
        fail("an undisturbed run fails: " + pathlib.Path("errors.txt").read_text())
    check_finished(place, "never")
    return time.monotonic() - begin


def kill_runs(place, kills):
    undisturbed(place)  # the first one waits for the system's own start
    longest = undisturbed(place)
    early = runs = 0
    while early < kills:
        runs += 1
        place.reset()
        run = place.sign()
        moment = random.uniform(0, longest)
        time.sleep(moment)
        run.kill()
        early += run.wait() != 0
        check_whole_files()
        if place.sign().wait() != RESOLVED:
            fail(f"killed after {moment:.3f} s: the next run fails: " + pathlib.Path("errors.txt").read_text())
        check_finished(place, f"after {moment:.3f} s")
    print(f"kills: {early} of {runs} runs were killed before their end, within {longest:.2f} s; the next completed each")


def two_at_once(place):
    place.reset()
    results = sorted(run.wait() for run in [place.sign(), place.sign()])
    if results != [RESOLVED, BUSY]:
        fail(f"two runs at once end with {results}")
    check_finished(place, "never")
    print("two runs at once: the second was refused")


def full_disk(place):
    small = HERE / "small"
    small.mkdir()
    mount = ["mount", "-t", "tmpfs", "-o", "size=64k", "tmpfs", small]
    if subprocess.run(mount, stderr=subprocess.DEVNULL).returncode != 0:
        print("full disk: left out, this user may not mount one")
        return
    try:
        place.reset()
        if place.sign(work="small").wait() == RESOLVED:
            fail("a run on a full disk calls everything signed")
        print("full disk: told, and nothing lost")
    finally:
        subprocess.run(["umount", small], check=True)


def main():
    build, kills = pathlib.Path(sys.argv[1]).resolve(), int(sys.argv[2])
    place = Place(build, int(sys.argv[3]) if len(sys.argv) > 3 else 12)
    kill_runs(place, kills)
    two_at_once(place)
    full_disk(place)


if __name__ == "__main__":
    main()
