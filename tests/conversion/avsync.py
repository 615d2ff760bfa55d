#!/usr/bin/python3
"""Decodes a file with GStreamer and prints, as JSON, when its picture first
turns bright and when its sound first turns loud, in seconds on the time line
GStreamer plays it on: {"flash": s, "beep": s}, null where never seen."""

import json
import sys

import gi

gi.require_version("Gst", "1.0")
from gi.repository import Gst  # noqa: E402


def stream_time(sample, pts):
    # Edit lists and start offsets reach us as the segment, not in the pts.
    return sample.get_segment().to_stream_time(Gst.Format.TIME, pts) / Gst.SECOND


def main(path):
    Gst.init(None)
    # Branches are made for the streams the file has, as decodebin finds
    # them: an unlinked branch would hold the pipeline from playing.
    pipeline = Gst.parse_launch("filesrc name=src ! decodebin name=d")
    pipeline.get_by_name("src").set_property("location", path)
    found = {"flash": None, "beep": None}

    def on_video(sink):
        sample = sink.emit("pull-sample")
        if found["flash"] is None:
            buffer = sample.get_buffer()
            width = sample.get_caps().get_structure(0).get_value("width")
            height = sample.get_caps().get_structure(0).get_value("height")
            ok, info = buffer.map(Gst.MapFlags.READ)
            # Rows may be padded; the picture's own bytes are enough here.
            data = info.data[: width * height]
            if sum(data[::97]) / len(data[::97]) > 128:
                found["flash"] = stream_time(sample, buffer.pts)
            buffer.unmap(info)
        return Gst.FlowReturn.OK

    def on_audio(sink):
        sample = sink.emit("pull-sample")
        if found["beep"] is None:
            buffer = sample.get_buffer()
            rate = sample.get_caps().get_structure(0).get_value("rate")
            ok, info = buffer.map(Gst.MapFlags.READ)
            samples = memoryview(info.data).cast("h")
            for i, value in enumerate(samples):
                if abs(value) > 4000:
                    found["beep"] = stream_time(sample, buffer.pts) + i / rate
                    break
            buffer.unmap(info)
        return Gst.FlowReturn.OK

    branches = {
        "video": ("queue ! videoconvert ! video/x-raw,format=GRAY8 ! appsink name=sink sync=false emit-signals=true",
                  on_video),
        "audio": ("queue ! audioconvert ! audio/x-raw,format=S16LE,channels=1,layout=interleaved "
                  "! appsink name=sink sync=false emit-signals=true", on_audio),
    }

    def on_pad(decoder, pad):
        kind = pad.query_caps(None).get_structure(0).get_name().split("/")[0]
        if kind not in branches:
            return
        description, handler = branches.pop(kind)
        branch = Gst.parse_bin_from_description(description, True)
        pipeline.add(branch)
        branch.get_by_name("sink").connect("new-sample", handler)
        # Linked before it starts, so that it sees the stream from its beginning.
        pad.link(branch.get_static_pad("sink"))
        branch.sync_state_with_parent()

    pipeline.get_by_name("d").connect("pad-added", on_pad)
    bus = pipeline.get_bus()
    pipeline.set_state(Gst.State.PLAYING)
    error = None
    while True:
        message = bus.timed_pop_filtered(60 * Gst.SECOND, Gst.MessageType.EOS | Gst.MessageType.ERROR)
        if message is None:
            error = "no end within 60 s"
            break
        if message.type == Gst.MessageType.ERROR:
            err, _ = message.parse_error()
            # A branch whose stream the file lacks reports not-linked; the other is done.
            if err.matches(Gst.StreamError.quark(), Gst.StreamError.FAILED) or "not-linked" in err.message:
                if found["flash"] is not None or found["beep"] is not None:
                    break
            error = err.message
            break
        break
    pipeline.set_state(Gst.State.NULL)
    if error:
        found["error"] = error
    print(json.dumps(found))


if __name__ == "__main__":
    main(sys.argv[1])
