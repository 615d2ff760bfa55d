#!/usr/bin/python3
"""Converts a source whose picture flashes and whose sound beeps at the same
instant with each profile, through kestrove-cli, and checks the outputs with
readers that are not ffmpeg: GStreamer for the offset between picture and
sound and for what it can open, mediainfo for container, streams and length.

The offset is held against what one plain ffmpeg process writes for the same
profile (the encoder front with -cpu_percent 100, which keeps the sound in
the same process), so that a format's own delay is not counted against us.

usage: playercheck.py CLI WORKDIR [--all | KEY...]
Without --all or keys: one profile for each file type, plus one more chosen
by the day.
"""

import concurrent.futures
import datetime
import json
import os
import re
import shutil
import subprocess
import sys

AVSYNC = os.path.join(os.path.dirname(os.path.abspath(__file__)), "avsync.py")
LENGTH = 3.0

# Outputs GStreamer on Debian 12 cannot open at all, with the reason.
GSTREAMER_CANNOT = {
    "swf": "GStreamer has no Flash (SWF) demuxer",
    "bmp": "GStreamer finds a BMP's type but has no parser to hand its picture to the decoder"
           " (a BMP from plain ffmpeg fails alike)",
}
# Where mediainfo misreads a correct file: the length is not held against it.
MEDIAINFO_LENGTH_WRONG = {
    "au": "mediainfo 23.04 counts 16-bit linear AU samples as 4-bit ones: four times the length",
}
# Pictures have no offset to measure.
STILLS = {"png", "jpg", "bmp", "gif"}


def run(args, env=None, timeout=600):
    return subprocess.run(args, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                          errors="replace", env=env, timeout=timeout)


def make_sources(work):
    # Black, then white from 1 s on; silence, then a 440 Hz tone from 1 s on.
    sources = {}
    for name, size in (("square", "320x240"), ("wide", "640x360")):
        path = os.path.join(work, name + ".mkv")
        result = run(["ffmpeg", "-nostdin", "-v", "error", "-y",
                      "-f", "lavfi", "-i",
                      "color=black:s=%s:r=30:d=%g,geq=lum='if(gte(T\\,1)\\,235\\,16)':cb=128:cr=128"
                      % (size, LENGTH),
                      "-f", "lavfi", "-i",
                      "aevalsrc='if(gte(t\\,1)\\,0.5*sin(2*PI*440*t)\\,0)':s=48000:d=%g" % LENGTH,
                      "-c:v", "libx264", "-preset", "ultrafast", "-c:a", "pcm_s16le", path])
        if result.returncode != 0:
            sys.exit("cannot make the source: " + result.stderr)
        sources[name] = path
    return sources


def reference_cli(cli, work):
    # The same cli beside a front that keeps the sound in one ffmpeg process.
    folder = os.path.join(work, "reference-bin")
    os.makedirs(folder, exist_ok=True)
    shutil.copy2(cli, os.path.join(folder, "kestrove-cli"))
    front = os.path.join(folder, "kestrove-encoder")
    with open(front, "w") as f:
        f.write('#!/bin/sh\nexec "%s" -cpu_percent 100 "$@"\n'
                % os.path.join(os.path.dirname(cli), "kestrove-encoder"))
    os.chmod(front, 0o755)
    return os.path.join(folder, "kestrove-cli")


def convert(cli, source, key, folder, home):
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    env = dict(os.environ, HOME=home)
    env.pop("XDG_CONFIG_HOME", None)
    result = run([cli, "convert", source, "--profile", key, "--output-dir", folder, "--json"],
                 env=env)
    try:
        task = json.loads(result.stdout)["tasks"][0]
    except (ValueError, KeyError, IndexError):
        return None, "no report: " + result.stderr[-500:]
    if task.get("state") != "Succeed":
        return None, "%s: %s" % (task.get("state"), task.get("reason", result.stderr[-500:]))
    return task["output"], None


def offsets(path):
    result = run(["/usr/bin/python3", AVSYNC, path], timeout=120)
    try:
        return json.loads(result.stdout.strip().splitlines()[-1])
    except (ValueError, IndexError):
        return {"error": result.stderr[-300:]}


def discovered(path):
    # Container, stream kinds and length as gst-discoverer-1.0 prints them.
    text = run(["gst-discoverer-1.0", "-v", path], timeout=120).stdout
    found = {"container": re.search(r"container( #\d+)?: (.+)", text),
             "video": re.search(r"video(\(image\))? #", text) is not None,
             "audio": re.search(r"audio #", text) is not None}
    found["container"] = found["container"].group(2).strip() if found["container"] else None
    length = re.search(r"Duration: (\d+):(\d+):([\d.]+)", text)
    found["length"] = (int(length.group(1)) * 3600 + int(length.group(2)) * 60
                       + float(length.group(3))) if length else None
    return found


def media_info(path):
    result = run(["mediainfo", "--Output=JSON", path], timeout=120)
    try:
        tracks = json.loads(result.stdout)["media"]["track"]
    except (ValueError, KeyError, TypeError):
        return None
    general = next((t for t in tracks if t["@type"] == "General"), {})
    return {"format": general.get("Format"), "length": float(general.get("Duration", 0) or 0),
            "video": [t for t in tracks if t["@type"] in ("Video", "Image")],
            "audio": [t for t in tracks if t["@type"] == "Audio"]}


def probe(path, entries):
    result = run(["ffprobe", "-v", "error", "-count_frames", "-show_entries", entries,
                  "-of", "json", path], timeout=120)
    return json.loads(result.stdout or "{}")


def pack_header(path):
    # The first pack's MPEG version and mux rate (bits a second), or None.
    with open(path, "rb") as f:
        head = f.read(14)
    if len(head) < 12 or head[:4] != b"\0\0\1\xba":
        return None
    if head[4] & 0xC0 == 0x40:
        return 2, ((head[10] << 14) | (head[11] << 6) | (head[12] >> 2)) * 400
    return 1, (((head[9] & 0x7F) << 15) | (head[10] << 7) | (head[11] >> 1)) * 400


def check(profile, cli, reference, sources, work):
    key, ext = profile["key"], profile["ext"]
    home = os.path.join(work, "home")
    base = os.path.join(work, key.replace(",", "_"))
    problems = []
    output, error = convert(cli, sources["square"], key, base + "-ours", home)
    if error:
        return [error]

    still = ext in STILLS
    if still and not os.path.exists(output):
        # A picture series: its pattern names the files; the first stands for all.
        output = os.path.join(base + "-ours", sorted(os.listdir(base + "-ours"))[0])
    info = media_info(output)
    if info is None or not info["format"]:
        problems.append("mediainfo cannot read it")
    elif not still:
        if abs(info["length"] - LENGTH) > 0.5 and ext not in MEDIAINFO_LENGTH_WRONG:
            problems.append("mediainfo gives %.2f s, not %g s" % (info["length"], LENGTH))
        if not info["video"] and not info["audio"]:
            problems.append("mediainfo finds no stream")
        if len(info["audio"]) > 1:
            problems.append("%d sound streams from one" % len(info["audio"]))
        video = info["video"][0] if info["video"] else {}
        if info["format"] == "MPEG-PS" and video.get("Format") == "MPEG Video":
            # MPEG-2 pictures in an MPEG-2 program stream; a Video CD's at its mux rate.
            version = int(video.get("Format_Version", 0))
            pack = pack_header(output)
            if not pack or pack[0] != version:
                problems.append("MPEG-%d video in a %s program stream" % (
                    version, "MPEG-%d" % pack[0] if pack else "broken"))
            elif (version == 1 and video.get("Width") == "352" and video.get("Height") in ("240", "288")
                  and (pack[1] != 1411200 or video.get("BitRate_Mode") != "CBR")):
                problems.append("not a Video CD stream: mux rate %d, %s picture"
                                % (pack[1], video.get("BitRate_Mode")))

    if ext in GSTREAMER_CANNOT:
        found = discovered(output)
        if found["video"] or found["audio"]:
            problems.append("GStreamer now reads %s: take it off the list" % ext)
    else:
        found = discovered(output)
        if not found["video"] and not found["audio"]:
            problems.append("gst-discoverer-1.0 finds no stream")
        if not still and (found["length"] is None or abs(found["length"] - LENGTH) > 0.5):
            problems.append("gst-discoverer-1.0 gives length %s" % found["length"])
        if info and bool(info["video"]) != found["video"]:
            problems.append("GStreamer and mediainfo disagree on the picture")
        if info and bool(info["audio"]) != found["audio"]:
            problems.append("GStreamer and mediainfo disagree on the sound")

    if ext == "gif":
        frames = probe(output, "stream=nb_read_frames:format=format_name")
        counted = int(frames["streams"][0].get("nb_read_frames", 0)) if frames.get("streams") else 0
        if len(os.listdir(base + "-ours")) != 1 or counted < 2:
            problems.append("not one animated GIF (%d files, %d frames)"
                            % (len(os.listdir(base + "-ours")), counted))
    if ext in ("dv", "vob"):
        # Shown at its true shape whatever the raster: 4:3 and 16:9 sources.
        for shape, wanted in (("square", "4:3"), ("wide", "16:9")):
            path, error = (output, None) if shape == "square" else convert(
                cli, sources["wide"], key, base + "-wide", home)
            if error:
                problems.append(error)
                continue
            streams = probe(path, "stream=codec_type,display_aspect_ratio")["streams"]
            shown = [s.get("display_aspect_ratio") for s in streams if s["codec_type"] == "video"]
            if shown != [wanted]:
                problems.append("a %s source shown at %s" % (wanted, shown))
    if still or ext in GSTREAMER_CANNOT or not found["audio"]:
        return problems

    ours = offsets(output)
    output_ref, error = convert(reference, sources["square"], key, base + "-ref", home)
    if error:
        return problems + ["reference: " + error]
    ref = offsets(output_ref)
    for name, times in (("ours", ours), ("one ffmpeg process", ref)):
        if times.get("beep") is None or (found["video"] and times.get("flash") is None):
            return problems + ["flash or beep not found in %s: %s" % (name, times)]
    if found["video"]:
        lag, ref_lag = ours["beep"] - ours["flash"], ref["beep"] - ref["flash"]
    else:
        lag, ref_lag = ours["beep"] - 1.0, ref["beep"] - 1.0
    if abs(lag - ref_lag) > 0.005:
        problems.append("sound %+.1f ms from the picture, one ffmpeg process %+.1f ms"
                        % (lag * 1000, ref_lag * 1000))
    # Sound alone has no picture to keep time with; a late start of its own is the format's.
    if found["video"] and abs(lag) > 0.040:
        problems.append("sound %+.1f ms from the picture" % (lag * 1000))
    return problems


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    cli, work = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
    every = "--all" in sys.argv[3:]
    keys = [a for a in sys.argv[3:] if a != "--all"]
    for tool in ("ffmpeg", "ffprobe", "gst-discoverer-1.0", "mediainfo"):
        if not shutil.which(tool):
            sys.exit("%s is missing: run scripts/setup-debian.sh" % tool)
    shutil.rmtree(work, ignore_errors=True)
    os.makedirs(work)
    listing = json.loads(run([cli, "profiles", "--json"],
                             env=dict(os.environ, HOME=os.path.join(work, "home"))).stdout)
    profiles = [p for g in listing["groups"] for p in g["profiles"]]
    if keys:
        profiles = [p for p in profiles if p["key"] in keys]
    elif not every:
        picked, seen = [], set()
        for p in profiles:
            if p["ext"] not in seen:
                seen.add(p["ext"])
                picked.append(p)
        rest = [p for p in profiles if p not in picked]
        picked.append(rest[datetime.date.today().toordinal() % len(rest)])
        profiles = picked
    sources = make_sources(work)
    reference = reference_cli(cli, work)
    failed = 0
    with concurrent.futures.ThreadPoolExecutor(max_workers=os.cpu_count() or 2) as pool:
        results = pool.map(lambda p: (p, check(p, cli, reference, sources, work)), profiles)
        for profile, problems in results:
            label = "%s (%s, .%s)" % (profile["name"], profile["key"], profile["ext"])
            print(("FAIL " if problems else "ok   ") + label, flush=True)
            for problem in problems:
                print("     " + problem, flush=True)
            failed += bool(problems)
    print("%d of %d profiles failed" % (failed, len(profiles)))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
