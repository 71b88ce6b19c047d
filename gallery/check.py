#!/usr/bin/env python3
"""Runs the gallery and looks at what it has written: check.py PROGRAM FOLDER

Every function that pictures, sounds or streams pass through must be shown, every file must be there, and every call must have
made a difference. Sounds that the library cannot hold are folded or refused in one line."""

import json
import pathlib
import re
import subprocess
import sys
import wave

UNSEEN = {
    "tell about the processor": "GetCpuID MMX",
    "call a function of the host's": "BBI wave dllMethod1 dllMethod4 StdCallBack",
    "shift, peek and poke numbers": "SHR SAR SHL GetWORD GetInt SetWORD SetInt GetDWORD GetLong SetDWORD SetLong",
    "compare and hash memory": "dllComp hash32A hash32W",
    "run a worker and hook windows": "ThreadBegin ThreadKill WindowProcLoad WindowProcUnload",
    "does nothing": "BBIAntiAreas",
}

program, folder = sys.argv[1], pathlib.Path(sys.argv[2])
faults = []


def expect(true, fault):
    if not true:
        faults.append(fault)


def run(*arguments):
    return subprocess.run([program, "--out", folder / "user", *arguments], capture_output=True, text=True, timeout=300)


def check_page():
    done = subprocess.run([program, "--out", folder], capture_output=True, text=True, timeout=300)
    expect(done.returncode == 0 and done.stderr == "", f"the gallery fails: {done.stderr}")
    entries = json.loads((folder / "gallery.json").read_text())
    shown = {name for entry in entries for name in entry["functions"]}
    table = (pathlib.Path(__file__).parent.parent / "src/exports/exports.txt").read_text()
    exported = set(re.findall(r"\w+", re.sub(r"#.*", "", table)))
    unseen = set(" ".join(UNSEEN.values()).split())
    expect(not exported - shown - unseen, f"not shown: {sorted(exported - shown - unseen)}")
    expect(not shown & unseen and not unseen - exported, f"not unseen: {sorted(shown & unseen | unseen - exported)}")

    page = (folder / "index.html").read_text()
    files = [name for entry in entries for name in entry["files"]]
    for name in files + re.findall(r'(?:src|href)="([^#"]+)"', page):
        expect((folder / name).is_file() and (folder / name).stat().st_size > 0, f"missing: {name}")
    expect(len(files) == len(set(files)), "two entries share a file")
    for entry in entries:
        expect(bool(entry["functions"]) <= (entry["milliseconds"] is not None), f"not measured: {entry['title']}")
        expect(f"<h3>{entry['title']}</h3>" in page, f"not on the page: {entry['title']}")


def sound(channels, rate):
    path = folder / "sound.wav"
    with wave.open(str(path), "wb") as out:
        out.setparams((channels, 2, rate, 0, "NONE", ""))
        out.writeframes(b"\x00\x10\x00\xe8" * (4096 * channels))
    return path


def check_sounds():
    done = run(sound(6, 48000))
    expect(done.returncode == 0 and "has 6 channels" in done.stdout, f"six channels: {done.stderr}")
    with wave.open(str(next((folder / "user/sounds").glob("*-the-voice.wav")))) as voice:
        expect((voice.getnchannels(), voice.getframerate(), voice.getnframes()) == (2, 48000, 8192), "not folded to two")
    for what, argument in {"a rate of 500": sound(2, 500), "a text": __file__, "no file": folder / "none.wav"}.items():
        done = run(argument)
        expect(done.returncode == 1 and done.stderr.count("\n") == 1 and str(argument) in done.stderr,
               f"{what} is not refused in one line: {done.stderr}")


check_page()
check_sounds()
sys.exit("\n".join(faults) or 0)
