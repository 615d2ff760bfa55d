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
    # playbin links what the file has and leaves the other sink idle.
    pipeline = Gst.ElementFactory.make("playbin", None)
    pipeline.set_property("uri", Gst.filename_to_uri(path))
    pipeline.set_property("flags", 0x1 | 0x2)  # picture and sound, no text
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

    for kind, description, handler in (
            ("video-sink", "videoconvert ! video/x-raw,format=GRAY8", on_video),
            ("audio-sink", "audioconvert ! audio/x-raw,format=S16LE,channels=1,layout=interleaved",
             on_audio)):
        branch = Gst.parse_bin_from_description(
            description + " ! appsink name=sink sync=false emit-signals=true", True)
        branch.get_by_name("sink").connect("new-sample", handler)
        pipeline.set_property(kind, branch)
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
