#!/usr/bin/env python3
"""Writes the built-in catalogue: Group.xml and every profile document.

The tables below are the source; the XML beside this folder is their output
and is committed, so building needs no Python. Run it again after a change:

    python3 resources/profiles/src/make_profiles.py

Documents follow a handful of families; a row names its family and the few
numbers in which it differs.
"""

import json
from pathlib import Path
from xml.sax.saxutils import quoteattr

OUT = Path(__file__).resolve().parent.parent
# The names and descriptions, for lupdate: translated in the context "Profile".
TEXTS = OUT.parent.parent / "src" / "profiles" / "cataloguetexts.cpp"

# ---------------------------------------------------------------------------
# Catalogue

# (id, name, icon)
GROUPS = [
    (0, "User Defined", "group_user.png"),
    (1, "General Video", "group_video.png"),
    (2, "General Audio", "group_audio.png"),
    (11, "Android", "group_android.png"),
    (12, "Apple TV", "group_apple_tv.png"),
    (13, "HD Video", "group_hd.png"),
    (14, "iPad", "group_ipad.png"),
    (15, "iPhone", "group_iphone.png"),
    (16, "iPod", "group_ipod.png"),
    (17, "Mobile Phone", "group_phone.png"),
    (18, "Picture and Animation", "group_pic_anim.png"),
    (19, "Portable Multimedia Device", "group_portable.png"),
    (20, "PS3", "group_ps3.png"),
    (21, "PSP", "group_psp.png"),
    (23, "Xbox HD Video", "group_xbox.png"),
    (24, "Zune", "group_zune.png"),
]

# group id -> [(id, file, name, ext, icon, short name, description)]
# A description of None is made from the codec and the device.
PROFILES = {
    1: [
        (12, "asf.xml", "ASF - Advanced Streaming Format", "asf", "asf", "ASF",
         "Advanced Streaming Format, a Windows Media container."),
        (15, "avi.xml", "AVI - Audio-Video Interleaved", "avi", "avi", "AVI",
         "Audio-Video Interleaved, the classic Windows video format."),
        (24, "divx.xml", "DivX Video", "avi", "divx", "DivX",
         "DivX video in an AVI container."),
        (31, "dv.xml", "DV - Digital Video format", "dv", "dv", "DV",
         "Digital Video format of camcorders."),
        (32, "dvd.xml", "DVD Video", "vob", "dvd", "DVD",
         "MPEG-2 video for DVD players."),
        (64, "mov.xml", "MOV - QuickTime", "mov", "mov", "MOV",
         "QuickTime movie format."),
        (68, "mp4.xml", "MPEG4 Video", "mp4", "mpeg-4", "MPEG-4",
         "MPEG-4 video format."),
        (69, "mpeg1.xml", "MPEG1 Video", "mpg", "mpeg-1", "MPEG-1",
         "MPEG-1 video format."),
        (70, "mpeg2.xml", "MPEG2 Video", "mpg", "mpeg-2", "MPEG-2",
         "MPEG-2 video format."),
        (74, "mpeg4h264.xml", "H.264/MPEG-4 AVC Video", "mp4", "h.264", "H.264",
         "H.264/MPEG-4 AVC video format."),
        (93, "rm.xml", "RM - Real Video", "rm", "rm", "RM",
         "RealVideo streaming format."),
        (98, "vcd.xml", "VCD Video", "mpg", "vcd", "VCD",
         "MPEG-1 video for Video CD players."),
        (103, "wmv.xml", "WMV - Windows Media Video", "wmv", "wmv", "WMV",
         "Windows Media Video format."),
        (118, "xvid.xml", "Xvid Video", "avi", "xvid", "Xvid",
         "Xvid video in an AVI container."),
        (122, "mkv.xml", "Matroska Video", "mkv", "mkv", "MKV",
         "Matroska video format."),
        (123, "webm.xml", "WebM Video", "webm", "webm", "WebM",
         "WebM video format for the web."),
    ],
    2: [
        (3, "ac3.xml", "AC3 - Dolby Digital AC-3", "ac3", "ac3", "AC3",
         "Dolby Digital AC-3 audio format."),
        (4, "aiff.xml", "AIFF - Audio Interchange File Format", "aiff", "aiff", "AIFF",
         "Audio Interchange File Format, uncompressed audio."),
        (134, "alac.xml", "ALAC - Apple Lossless Audio Codec", "m4a", "alac", "ALAC",
         "Apple Lossless audio format."),
        (133, "flac.xml", "FLAC - Free Lossless Audio Codec", "flac", "flac", "FLAC",
         "Free Lossless Audio Codec format."),
        (14, "au.xml", "SUN AU Format", "au", "au", "AU",
         "Sun AU audio format."),
        (61, "m4a.xml", "M4A - MPEG-4 Audio", "m4a", "m4a", "M4A",
         "MPEG-4 Audio format."),
        (66, "mp2.xml", "MP2 - MPEG Layer-2 Audio", "mp2", "mp2", "MP2",
         "MPEG Layer-2 audio format."),
        (67, "mp3.xml", "MP3 - MPEG Layer-3 Audio", "mp3", "mp3", "MP3",
         "MPEG Layer-3 audio format."),
        (76, "ogg.xml", "OGG - Ogg Vorbis Audio", "ogg", "ogg", "OGG",
         "Ogg Vorbis audio format."),
        (92, "ra.xml", "RA - RealAudio", "ra", "ra", "RA",
         "RealAudio streaming format."),
        (99, "wav.xml", "WAV - Waveform Audio", "wav", "wav", "WAV",
         "Waveform audio format, uncompressed."),
        (102, "wma.xml", "WMA - Windows Media Audio", "wma", "wma", "WMA",
         "Windows Media Audio format."),
    ],
    11: [
        (5, "Android_mp4.xml", "Android MPEG4 Video", "mp4", "android", "Android", None),
        (141, "samsunggalaxys3_h264.xml", "Samsung Galaxy S3 H.264 Video", "mp4", "galaxys3",
         "Galaxy S3", None),
        (136, "samsunggalaxytab_mp4.xml", "Samsung Galaxy Tab MPEG4 Video", "mp4", "galaxytab",
         "Galaxy Tab", None),
    ],
    12: [
        (6, "AppleTV_h264.xml", "Apple TV H.264 Video", "mp4", "appletv", "Apple TV", None),
        (7, "AppleTV_h264_hd.xml", "Apple TV H.264 HD Video", "mp4", "appletvhd", "Apple TV HD",
         None),
        (140, "AppleTV3_1080p.xml", "Apple TV 3 H.264 1080P Video", "mp4", "appletvhd",
         "Apple TV HD", None),
        (8, "AppleTV_mpeg4.xml", "Apple TV MPEG4 Video", "mp4", "appletv", "Apple TV", None),
    ],
    13: [
        (13, "asf_hd.xml", "HD ASF Video", "asf", "hdasf", "HD ASF", None),
        (16, "avi_hd.xml", "HD AVI Video", "avi", "hdavi", "HD AVI", None),
        (34, "h264_hd_mpeg4.xml", "HD H.264/MPEG-4 AVC Video", "mp4", "hdh.264", "HD H.264", None),
        (65, "mov_hd.xml", "HD Quick Time Video", "mov", "hdmov", "HD MOV", None),
        (71, "mpeg2_hd_mpg.xml", "MPEG2-PS HD Video", "mpg", "hdmpeg-2", "HD MPEG-2", None),
        (72, "mpeg2_ts.xml", "MPEG2-TS HD Video", "ts", "hdts", "HD TS", None),
        (73, "mpeg4_hd.xml", "MPEG4 HD Video", "mp4", "hdmpeg-4", "HD MPEG-4", None),
        (94, "rm_hd.xml", "RM HD Video", "rm", "hdrm", "HD RM", None),
        (104, "wmv_hd.xml", "HD WMV Video", "wmv", "hdwmv", "HD WMV", None),
        (119, "xvid_hd.xml", "XVID HD Video", "avi", "hdxvid", "HD Xvid", None),
    ],
    14: [
        (42, "iPad_h264.xml", "iPad H.264 Video", "mp4", "ipad", "iPad", None),
        (43, "iPad_h264_hd.xml", "iPad H.264 HD Video", "mp4", "ipad", "iPad", None),
        (44, "iPad_mpeg4.xml", "iPad MPEG4 Video", "mp4", "ipad", "iPad", None),
        (126, "iPad2_h264.xml", "iPad 2 H.264 Video", "mp4", "ipad2", "iPad", None),
        (127, "iPad2_h264_hd.xml", "iPad 2 H.264 HD Video", "mp4", "ipad2", "iPad", None),
        (128, "iPad2_mpeg4.xml", "iPad 2 MPEG4 Video", "mp4", "ipad2", "iPad", None),
        (139, "iPad3_1080p.xml", "iPad 3 1080P Video", "mp4", "ipad2", "iPad", None),
        (143, "iPadmini_h264.xml", "iPad mini H.264 Video", "mp4", "small/ipadmini", "iPad", None),
    ],
    15: [
        (45, "iPhone_h264.xml", "iPhone H.264 Video", "mp4", "iphone", "iPhone", None),
        (47, "iPhone_mpeg4.xml", "iPhone MPEG4 Video", "mp4", "iphone", "iPhone", None),
        (129, "iPhone4_h264.xml", "iPhone 4 H.264 Video", "mp4", "iphone4", "iPhone", None),
        (130, "iPhone4_mpeg4.xml", "iPhone 4 MPEG4 Video", "mp4", "iphone4", "iPhone", None),
        (142, "iPhone5_h264.xml", "iPhone 5 H.264 Video", "mp4", "iphone5", "iPhone", None),
    ],
    16: [
        (49, "ipod_h264.xml", "iPod H.264 Video", "mp4", "ipod", "iPod", None),
        (51, "ipod_mpeg4.xml", "iPod MPEG4 Video", "mp4", "ipod", "iPod", None),
        (53, "iPodtouch_h264.xml", "iPod touch H.264 Video", "mp4", "ipodtouch", "iPod touch",
         None),
        (55, "iPodtouch_mpeg4.xml", "iPod touch MPEG4 Video", "mp4", "ipodtouch", "iPod touch",
         None),
        (131, "iPodtouch4_h264.xml", "iPod touch 4 H.264 Video", "mp4", "iphone4", "iPod touch",
         None),
        (132, "iPodtouch4_mpeg4.xml", "iPod touch 4 MPEG4 Video", "mp4", "iphone4", "iPod touch",
         None),
    ],
    17: [
        (1, "3gpp2.xml", "Mobile Phone 3GP Video - Stereo", "3gp", "3gp", "3GP", None),
        (2, "3gpp.xml", "Mobile Phone 3GP Video - Mono", "3gp", "3gp", "3GP", None),
        (17, "BlackBerry_3gp.xml", "BlackBerry 3GP Video", "3gp", "blackberry", "BlackBerry", None),
        (18, "BlackBerry_avi.xml", "BlackBerry AVI Video", "avi", "blackberry", "BlackBerry", None),
        (19, "BlackBerry_mp4.xml", "BlackBerry MPEG4 Video", "mp4", "blackberry", "BlackBerry",
         None),
        (105, "wmv_mobile.xml", "WMV Video for Mobile Phone", "wmv", "wmvmobile", "WMV", None),
    ],
    18: [
        (33, "flv.xml", "FLV - Flash Video Format", "flv", "flv", "FLV",
         "Flash video format for web pages."),
        (38, "image_bmp.xml", "Picture - BMP format", "bmp", "bmp", "BMP",
         "Pictures captured from the video as BMP files."),
        (39, "image_gif.xml", "Picture - GIF Animation format", "gif", "gif", "GIF",
         "An animated GIF picture made from the video."),
        (40, "image_jpeg.xml", "Picture - JPEG format", "jpg", "jpeg", "JPEG",
         "Pictures captured from the video as JPEG files."),
        (41, "image_png.xml", "Picture - PNG format", "png", "png", "PNG",
         "Pictures captured from the video as PNG files."),
        (96, "swf.xml", "SWF - SWF Format", "swf", "swf", "SWF",
         "Shockwave Flash animation format."),
    ],
    19: [
        (10, "archos_mpeg4.xml", "Archos MPEG4", "mp4", "archos", "Archos", None),
        (21, "create_zenvision_mpeg4.xml", "Creative ZEN MPEG4 Video", "mp4", "zen", "Creative ZEN",
         None),
        (58, "iriver_mpeg4.xml", "iRiver MPEG4 Video", "mp4", "iriver", "iRiver", None),
    ],
    20: [(79, "ps3h264.xml", "PS3 H.264 Video", "mp4", "ps3", "PS3", None)],
    21: [(88, "psp_mpeg4.xml", "PSP MPEG-4 Video", "mp4", "psp", "PSP", None)],
    23: [
        (107, "Xbox_h264.xml", "Xbox360 H.264 Video", "mov", "xbox360", "Xbox360", None),
        (112, "Xbox_mpeg4.xml", "Xbox360 MPEG4 Video", "mov", "xbox360", "Xbox360", None),
        (114, "Xbox_wmv.xml", "Xbox360 WMV Video", "wmv", "xbox360", "Xbox360", None),
    ],
    24: [(121, "zune_mpeg4.xml", "Zune MPEG4 Video", "mp4", "zune", "Zune", None)],
}

# The container where it isn't the extension.
FORMATS = {69: "mpeg", 70: "vob", 71: "vob", 98: "vcd", 92: "rm", 88: "psp",
           102: "xwmv", 103: "xwmv", 104: "xwmv", 105: "xwmv", 114: "xwmv",
           38: "image", 39: "image", 40: "image", 41: "image"}
RECOMMENDED = {5, 6, 45, 49, 79, 114}
SHORTCUTS = {1: "P", 2: "H", 17: "G", 121: "M"}

# Device name used in "... profile optimized for <device>".
DEVICES = {11: "Android", 12: "Apple TV", 13: "HD players", 14: "iPad", 15: "iPhone",
           16: "iPod", 17: "mobile phones", 19: "portable players", 20: "PS3", 21: "PSP",
           23: "Xbox360", 24: "Zune"}

# ---------------------------------------------------------------------------
# Parameter vocabulary

GENRES = [
    "Blues", "Classic Rock", "Country", "Dance", "Disco", "Funk", "Grunge", "Hip-Hop", "Jazz",
    "Metal", "New Age", "Oldies", "Other", "Pop", "R&B", "Rap", "Reggae", "Rock", "Techno",
    "Industrial", "Alternative", "Ska", "Death Metal", "Pranks", "Soundtrack", "Euro-Techno",
    "Ambient", "Trip-Hop", "Vocal", "Jazz+Funk", "Fusion", "Trance", "Classical", "Instrumental",
    "Acid", "House", "Game", "Sound Clip", "Gospel", "Noise", "AlternRock", "Bass", "Soul", "Punk",
    "Space", "Meditative", "Instrumental Pop", "Instrumental Rock", "Ethnic", "Gothic", "Darkwave",
    "Techno-Industrial", "Electronic", "Pop-Folk", "Eurodance", "Dream", "Southern Rock", "Comedy",
    "Cult", "Gangsta", "Top 40", "Christian Rap", "Pop/Funk", "Jungle", "Native American",
    "Cabaret", "New Wave", "Psychadelic", "Rave", "Showtunes", "Trailer", "Lo-Fi", "Tribal",
    "Acid Punk", "Acid Jazz", "Polka", "Retro", "Musical", "Rock & Roll", "Hard Rock", "Folk",
    "Folk-Rock", "National Folk", "Swing", "Fast Fusion", "Bebob", "Latin", "Revival", "Celtic",
    "Bluegrass", "Avantgarde", "Gothic Rock", "Progressive Rock", "Psychedelic Rock",
    "Symphonic Rock", "Slow Rock", "Big Band", "Chorus", "Easy Listening", "Acoustic", "Humour",
    "Speech", "Chanson", "Opera", "Chamber Music", "Sonata", "Symphony", "Booty Bass", "Primus",
    "Porn Groove", "Satire", "Slow Jam", "Club", "Tango", "Samba", "Folklore", "Ballad",
    "Power Ballad", "Rhythmic Soul", "Freestyle", "Duet", "Punk Rock", "Drum Solo", "A capella",
    "Euro-House", "Dance Hall",
]
assert len(GENRES) == 126

TAGS = ["title", "author", "copyright", "comment", "album", "composer", "origaritist", "url",
        "encodedby", "year"]

EXPERT_TEXT = [
    "pix_fmt", "async", "g", "qscale", "qmin", "qmax", "lmin", "lmax", "qdiff", "qblur", "qcomp",
    "rc_init_cplx", "b_qfactor", "i_qfactor", "b_qoffset", "i_qoffset", "ibias", "pbias", "rc_eq",
    "rc_override", "me_threshold", "mb_threshold", "ec", "mbd", "mbcmp", "ildctcmp", "subcmp",
    "cmp", "precmp", "preme", "lumi_mask", "dark_mask", "scplx_mask", "tcplx_mask", "p_mask",
    "bug", "ps", "error", "intra_matrix", "inter_matrix", "nr", "qns", "sc_threshold", "me_range",
    "dc", "coder", "pred"]
EXPERT_FLAGS = [
    "deinterlace", "ildct", "ilme", "intra", "er", "bf", "obmc", "part", "strict", "psnr", "vstats",
    "aic", "aiv", "umv", "alt", "top", "qpel", "scan_offset", "cgop", "bitexact"]
assert len(EXPERT_TEXT) + len(EXPERT_FLAGS) == 67

QUALITY = "Highest,Higher,Normal,Lower,Lowest"
RATES = "15,20,23.97,24,25,29.97,30"
SAMPLE_RATES = "48000,44100,32000,22050,16000,8000"
# The rates the AC-3 encoder takes; MPEG audio adds the halves.
AC3_RATES = "48000,44100,32000"
MP2_RATES = "48000,44100,32000,22050,16000"
CHANNELS = "1 (Mono),2 (Stereo)"
CHANNELS_51 = "1 (Mono),2 (Stereo),5.1"
VOLUMES = "25%,50%,75%,100%,125%,150%,175%,200%"

GENERAL_SIZES = "Auto,176*144,320*240,352*240,352*288,640*480,720*480,704*576,720*576"
H264_SIZES = "Auto,320*240,352*240,352*288,640*480,720*480,704*576,720*576"
LABELLED_SIZES = ("Auto,128*96 (sqcif),176*144 (qcif),352*288 (cif),704*576 (4cif),352*240,"
                  "640*480,480*272,320*240")
WEB_SIZES = "Auto,240*160,320*240,480*272,480*320,480*368,512*384,640*480,720*480,1280*720"
HD_SIZES = "960*540,1280*720,1440*1080,1920*1080"
DISC_SIZES = "720*480,720*576"
PHONE_3GP_SIZES = "128*96,176*144,352*288,704*576,1408*1152"
FLASH_SIZES = ("Auto,176*144 (qcif),320*240,352*240,352*288 (cif),640*480,704*576 (4cif),"
               "720*480,720*576")
PICTURE_SIZES = ("Auto,128*96 (sqcif),176*144 (qcif),352*240,480*272,352*288 (cif),640*480,"
                 "704*576 (4cif)")
# The DVD-style sizes with their names, which the command line cuts off.
MPEG2_SIZES = ("Auto,352*240 (sif),352*288 (cif),352*480 (half d1),352*576 (half d1),"
               "720*480 (d1),720*576 (d1)")

# ---------------------------------------------------------------------------
# Families: the form of a document. A row changes numbers, not form.
#
# Keys of a family (all optional):
#   vcodec, acodec: (default, candidates, fixed)
#   s: (default, candidates, fixed)
#   b: (default, simple values) or ("text", value) for a fixed free-text rate
#   r: (default, candidates)      ab: (default, simple values)
#   ar: (default, candidates, fixed)   ac: (default, candidates, fixed)
#   level: (default, candidates)
#   summary: "full" / "title" / None     general: picture codec
#   expert: dict of defaults, or None for no Expert section
#   aspect, sameq, an: present unless False

H264_EXPERT = {"g": "250", "qscale": "25", "coder": "1"}
H264_LEVELS = "10,11,12,13,20,21,22,30,31,32,40,41,42,50,51"
# The first iPads and the mini decode H.264's main profile, not high.
IPAD_MAIN = ("main", "baseline,main")

FAMILIES = {
    "general video": dict(
        vcodec=("mpeg4", "mpeg4", True), acodec=("mpeg4aac", "mpeg4aac,aac,ac3", True),
        s=("Auto", GENERAL_SIZES, False), b=("1200", "2500,1500,1200,800,512"), r=("29.97", RATES),
        ab=("192", "320,256,192,128,96"), ar=("44100", SAMPLE_RATES, False),
        ac=("2 (Stereo)", CHANNELS, False), expert={}),
    "general H.264": dict(
        vcodec=("h264", "h264", True), acodec=("mpeg4aac", "mpeg4aac,aac,ac3", True),
        s=("Auto", H264_SIZES, False), b=("768", "1500,1200,768,512,256"), r=("29.97", RATES),
        ab=("192", "320,256,192,128,96"), ar=("44100", SAMPLE_RATES, False),
        ac=("2 (Stereo)", CHANNELS, False), level=("13", H264_LEVELS), expert=H264_EXPERT),
    "disc: DVD": dict(
        vcodec=("mpeg2video", "mpeg2video", True), acodec=("ac3", "mp2,ac3", False),
        s=("720*480", DISC_SIZES, False), b=("5000", "8000,6500,5000,3500,2000"),
        r=("29.97", "23.97,25,29.97"), ab=("192", "320,256,192,128,96"),
        ar=("48000", "48000,44100", False), ac=("2 (Stereo)", CHANNELS_51, False),
        expert={"g": "18"}),
    "disc: VCD": dict(
        vcodec=("mpeg1video", "mpeg1video", True), acodec=("mp2", "mp2", True),
        s=("352*240", "352*240,352*288 (cif)", False), b=("text", "1150"), r=("29.97", "25,29.97"),
        ab=("224", "384,320,224,192,128"), ar=("44100", "44100", False),
        ac=("2 (Stereo)", CHANNELS, False), sameq=False, expert={"g": "18"}),
    "camera: DV": dict(
        vcodec=("dvvideo", "dvvideo", True), acodec=("pcm_s16le", "pcm_s16le", True),
        s=("720*480", DISC_SIZES, False), r=("29.97", "25,29.97"),
        ar=("48000", "48000", True), ac=("2 (Stereo)", "2 (Stereo)", True), sameq=False,
        an=False, expert={"g": "18"}),
    "streaming: Real": dict(
        vcodec=("rv10", "rv10,rv20", False), acodec=("rmaudio", "rmaudio", True),
        s=("Auto", LABELLED_SIZES, False), b=("384", "1200,512,384,256,128"),
        r=("Auto", "Auto," + RATES), ab=("64", "128,96,64,48,32"),
        ar=("44100", AC3_RATES, False), ac=("2 (Stereo)", CHANNELS, False), expert={}),
    "Windows Media": dict(
        vcodec=("wmv3x", "wmv1x,wmv2x,wmv3x", False),
        acodec=("wma7x", "wma7x,wma8x,wma9x,wmalsl", False), s=("Auto", GENERAL_SIZES, False),
        b=("1200", "2000,1500,1200,768,512"), r=("Auto", "Auto," + RATES),
        ab=("128", "256,192,128,80,48"), ar=("44100", SAMPLE_RATES, False),
        ac=("2 (Stereo)", CHANNELS, False), summary="full", vn=True, expert={}),
    "Matroska": dict(
        vcodec=("h264", "mpeg4,h264", False),
        acodec=("libmp3lame", "libmp3lame,libfaac,ac3", True), s=("Auto", WEB_SIZES, False),
        b=("1200", "2500,1500,1200,800,512"), r=("29.97", RATES), ab=("192", "320,256,192,128,96"),
        ar=("44100", SAMPLE_RATES, False), ac=("2 (Stereo)", CHANNELS_51, False), expert={}),
    "WebM": dict(
        vcodec=("vp8", "vp8", True), acodec=("vorbis", "vorbis", True),
        s=("Auto", WEB_SIZES, False), b=("1200", "2500,1500,1200,800,512"),
        r=("Auto", "Auto," + RATES), ab=("192", "320,256,192,128,96"),
        ar=("44100", SAMPLE_RATES, False), ac=("2 (Stereo)", CHANNELS, False), expert={}),
    "HD": dict(
        vcodec=("mpeg4", "mpeg4", True), acodec=("mpeg4aac", "mpeg4aac,aac,ac3", True),
        s=("1920*1080", HD_SIZES, False), b=("10000", "15000,12000,10000,8000,6000"),
        r=("29.97", RATES), ab=("192", "320,256,192,128,96"), ar=("44100", SAMPLE_RATES, False),
        ac=("2 (Stereo)", CHANNELS_51, False), expert={}),
    "HD transport stream": dict(
        vcodec=("mpeg2video", "mpeg2video", True), acodec=("mp2", "ac3,mp2", False),
        s=("1920*1080", HD_SIZES, False), b=("12000", "20000,15000,12000,9000,6000"),
        r=("29.97", RATES), ab=("128", "320,256,128,96,64"), ar=("44100", SAMPLE_RATES, False),
        ac=("2 (Stereo)", CHANNELS_51, False), expert={}),
    "phone H.264": dict(
        vcodec=("h264", "h264", True), acodec=("mpeg4aac", "mpeg4aac", True),
        s=("480*320", "480*320", True), b=("1000", "1500,1200,1000,768,512"), r=("29.97", RATES),
        ab=("128", "160,128,128,96,64"), ar=("44100", SAMPLE_RATES, False),
        ac=("2 (Stereo)", CHANNELS, False), level=("21", "21,22,30"), expert={}),
    "phone MPEG-4": dict(
        vcodec=("mpeg4", "mpeg4", True), acodec=("mpeg4aac", "mpeg4aac", True),
        s=("480*320", "480*320", True), b=("1000", "1500,1200,1000,768,640"), r=("29.97", RATES),
        ab=("128", "160,128,128,96,64"), ar=("44100", SAMPLE_RATES, False),
        ac=("2 (Stereo)", CHANNELS, False), expert={}),
    "tablet HD": dict(
        vcodec=("h264", "h264", True), acodec=("mpeg4aac", "mpeg4aac", True),
        s=("1280*720", "1280*720,960*540", True), b=("3500", "5000,4000,3500,2500,2000"),
        r=("29.97", RATES), ab=("128", "160,128,128,96,64"), ar=("44100", SAMPLE_RATES, False),
        ac=("2 (Stereo)", CHANNELS, False), level=("31", "22,30,31"), expert={}),
    "television box": dict(
        vcodec=("h264", "h264", True), acodec=("mpeg4aac", "mpeg4aac,ac3", False),
        s=("720*480", DISC_SIZES, False), b=("2000", "3000,2500,2000,1500,1000"),
        r=("29.97", RATES), ab=("128", "160,128,128,96,64"), ar=("44100", SAMPLE_RATES, False),
        ac=("2 (Stereo)", CHANNELS_51, False), level=("31", "22,30,31"), summary="title",
        expert=H264_EXPERT),
    "games console": dict(
        vcodec=("h264", "h264", True), acodec=("mpeg4aac", "mpeg4aac", True),
        s=("720*480", DISC_SIZES, False), b=("2000", "3000,2500,2000,1500,1000"),
        r=("29.97", RATES), ab=("128", "320,256,128,96,64"), ar=("44100", SAMPLE_RATES, False),
        ac=("2 (Stereo)", CHANNELS_51, False), level=("31", "22,30,31"), expert=H264_EXPERT),
    "3GP mono": dict(
        vcodec=("h263", "h263,libxvid,mpeg4", False), acodec=("libamr_nb", "libamr_nb", True),
        s=("352*288", PHONE_3GP_SIZES, False), b=("448", "768,640,448,320,192"),
        r=("15", "10,12,15,20,25"), ab=("6.7", "12.2,7.95,6.7,5.9,4.75"),
        ar=("8000", "8000", False), ac=("1 (Mono)", "1 (Mono)", False), expert={}),
    "3GP stereo": dict(
        vcodec=("h263", "h263,h264,libxvid,mpeg4", False), acodec=("mpeg4aac", "mpeg4aac", True),
        s=("352*288", PHONE_3GP_SIZES, False), b=("448", "768,640,448,320,192"),
        r=("15", "10,12,15,20,25"), ab=("96", "160,128,96,64,32"),
        ar=("44100", SAMPLE_RATES, False), ac=("2 (Stereo)", CHANNELS, False), expert={}),
    "Flash": dict(
        acodec=("mp3", "mp3", True), s=("Auto", FLASH_SIZES, False),
        b=("512", "1000,768,512,384,256"), r=("15", "10,12,15,20,25,29.97"),
        ab=("64", "128,96,64,48,32"), ar=("44100", "44100,22050,11025", False),
        ac=("2 (Stereo)", CHANNELS, False), aspect=False, sameq=False, an=False, expert=None),
    "picture": dict(general="JPG", s=("Auto", PICTURE_SIZES, False)),
    "audio with bit rate": dict(
        acodec=("mp3", "mp3", True), ab=("128", "320,256,128,96,64"),
        ar=("44100", SAMPLE_RATES, False), ac=("2 (Stereo)", CHANNELS, False)),
    "audio without bit rate": dict(
        acodec=("pcm_s16le",
                "pcm_s24le,pcm_s16le,pcm_u8,pcm_alaw,pcm_mulaw,adpcm_ms,adpcm_ima_wav", False),
        ar=("44100", SAMPLE_RATES, False), ac=("2 (Stereo)", CHANNELS, False)),
}


def fixed_size(size, bit_rate=None, level=None):
    """A device's one frame size, not to be edited."""
    row = dict(s=(size, size, True))
    if bit_rate:
        row["b"] = bit_rate
    if level:
        row["level"] = level
    return row


def codec(name, candidates=None, fixed=True):
    return (name, candidates or name, fixed)


DEVICE_AUDIO = dict(acodec=codec("mpeg4aac"), ab=("128", "160,128,128,96,64"))
MP3_AUDIO = dict(acodec=codec("mp3", "mp3,mpeg4aac,ac3", False), ab=("128", "320,256,128,96,64"))
MP2_AUDIO = dict(acodec=codec("mp2", "mp2,ac3", False), ab=("192", "320,256,192,128,96"))
AC3_AUDIO = dict(acodec=codec("ac3", "ac3,mp2"), ab=("192", "320,256,192,128,96"))
WMA_AUDIO = dict(acodec=("wma7x", "wma7x,wma8x,wma9x,wmalsl", False))
XVID = dict(vcodec=codec("libxvid"), **MP3_AUDIO)
DIVX = dict(vcodec=codec("divx"), **MP3_AUDIO)
MPEG2_PS = dict(vcodec=codec("mpeg2video"), **MP2_AUDIO)
H264_TV = dict(vcodec=codec("h264"), level=("30", "21,22,30"), **DEVICE_AUDIO)
MPEG4_TV = dict(vcodec=codec("mpeg4"), **DEVICE_AUDIO)
HD_RATE = ("8000", "12000,10000,8000,6000,4000")
# TV-out sizes and editing formats keep the source's frame rate.
SOURCE_RATE = ("Auto", "Auto," + RATES)
EDITING_AB = ("256", "320,256,192,160,128")
CONSOLE_MP2_AB = ("224", "384,320,224,192,128")
# Players of later catalogues offer 192 kbit/s as the highest audio quality.
PLAYER_AB_VALUES = "192,160,128,96,64"
# The consoles that list the expert options with bitexact first.
CONSOLE_ORDER = {"Xbox_divx_hd.xml", "Xbox_mpeg2.xml", "Xbox_mpeg2_hd.xml",
                 "Xbox_mpeg2_hd_ts.xml", "Xbox_mpeg4.xml", "Xbox_mpeg4_hd.xml", "Xbox_xvid.xml",
                 "Xbox_xvid_hd.xml"}

# file -> (family, changes)
DOCUMENTS = {
    # General video
    "asf.xml": ("Windows Media", dict(vcodec=codec("wmv2x", "wmv1x,wmv2x,wmv3x", False),
                                      summary=None, vn=False, **MP3_AUDIO)),
    "avi.xml": ("general video", dict(vcodec=codec("msmpeg4v2", "msmpeg4v2,mpeg4,libxvid", False),
                                      **MP3_AUDIO)),
    "divx.xml": ("general video", DIVX),
    "dv.xml": ("camera: DV", {}),
    "dvd.xml": ("disc: DVD", {}),
    "mov.xml": ("general video", {}),
    "mp4.xml": ("general video", {}),
    "mpeg1.xml": ("general video", dict(vcodec=codec("mpeg1video"), s=("Auto", GENERAL_SIZES, False),
                                        **MP2_AUDIO)),
    "mpeg2.xml": ("general video", dict(s=("Auto", MPEG2_SIZES, False), b=("2000",
                                        "6000,4000,2000,1500,1000"), **MPEG2_PS)),
    "mpeg4h264.xml": ("general H.264", {}),
    "rm.xml": ("streaming: Real", {}),
    "vcd.xml": ("disc: VCD", {}),
    "wmv.xml": ("Windows Media", dict(ar=("48000", SAMPLE_RATES, False))),
    "xvid.xml": ("general video", XVID),
    "mkv.xml": ("Matroska", {}),
    "webm.xml": ("WebM", {}),
    # General audio
    "ac3.xml": ("audio with bit rate", dict(acodec=codec("ac3"), ab=("192", "448,384,256,192,128"),
                                            ar=("48000", AC3_RATES, False),
                                            ac=("2 (Stereo)", CHANNELS_51, False))),
    "aiff.xml": ("audio without bit rate", dict(acodec=codec("pcm_s16be", "pcm_s16be,pcm_s24be",
                                                             False))),
    "alac.xml": ("audio without bit rate", dict(acodec=codec("alac"))),
    "flac.xml": ("audio without bit rate", dict(acodec=codec("flac"))),
    "au.xml": ("audio without bit rate", dict(acodec=codec("pcm_s16be", "pcm_s16be,pcm_alaw,"
                                                           "pcm_mulaw", False))),
    "m4a.xml": ("audio with bit rate", dict(acodec=codec("mpeg4aac"), summary="full")),
    "mp2.xml": ("audio with bit rate", dict(acodec=codec("mp2"), ab=("192", "384,320,192,128,96"),
                                            ar=("44100", MP2_RATES, False))),
    "mp3.xml": ("audio with bit rate", dict(summary="full", ar=("48000", SAMPLE_RATES, False))),
    "ogg.xml": ("audio with bit rate", dict(acodec=codec("libvorbis"), ar=("44100", SAMPLE_RATES,
                                                                             False))),
    "ra.xml": ("audio with bit rate", dict(acodec=codec("rmaudio"), ab=("64", "128,96,64,48,32"),
                                           ar=("44100", AC3_RATES, False))),
    "wav.xml": ("audio without bit rate", {}),
    "wma.xml": ("audio with bit rate", dict(acodec=codec("wma7x", "wma7x,wma8x,wma9x", False),
                                            summary="full")),
    # Android
    "Android_mp4.xml": ("phone MPEG-4", dict(s=("480*320", "320*240,480*320", False))),
    "samsunggalaxys3_h264.xml": ("phone H.264", fixed_size("1280*720", ("2500",
                                 "4000,3000,2500,2000,1500"), ("31", "30,31,40"))),
    "samsunggalaxytab_mp4.xml": ("phone MPEG-4", fixed_size("1024*600", ("1500",
                                 "2500,2000,1500,1200,1000"))),
    "HTCG2Magic_mp4.xml": ("phone MPEG-4", fixed_size("480*320")),
    "HTCHero_mp4.xml": ("phone MPEG-4", fixed_size("480*320")),
    "HTCTattoo_mp4.xml": ("phone MPEG-4", dict(vcodec=codec("h263", "h263,mpeg4", False),
                                               r=("15", "10,12,15,20,25"),
                                               **fixed_size("352*288", ("448",
                                               "768,640,448,320,192")))),
    "MotorolaCLIQ_mp4.xml": ("phone MPEG-4", fixed_size("480*320")),
    "MotorolaDroid_mp4.xml": ("phone MPEG-4", fixed_size("854*480")),
    "Samsungi7500_mp4.xml": ("phone MPEG-4", fixed_size("480*320")),
    "nexusOne_mp4.xml": ("phone MPEG-4", fixed_size("800*480")),
    # Apple TV
    "AppleTV_h264.xml": ("television box", {}),
    "AppleTV_h264_hd.xml": ("television box", dict(s=("1280*720", "1280*720,960*540", False),
                                                   b=("5000", "8000,6000,5000,4000,3000"))),
    "AppleTV3_1080p.xml": ("television box", dict(s=("1920*1080", "1920*1080,1280*720", False),
                                                  b=("8000", "12000,10000,8000,6000,5000"),
                                                  level=("40", "31,40,41"))),
    "AppleTV_mpeg4.xml": ("television box", dict(vcodec=codec("mpeg4"), level=None,
                                                 expert={})),
    # HD video
    "asf_hd.xml": ("HD", dict(vcodec=codec("wmv2x", "wmv1x,wmv2x,wmv3x", False), b=HD_RATE,
                              **MP3_AUDIO)),
    "avi_hd.xml": ("HD", dict(b=HD_RATE, **MP3_AUDIO)),
    "h264_hd_mpeg4.xml": ("HD", dict(vcodec=codec("h264"), level=("40", H264_LEVELS))),
    "mov_hd.xml": ("HD", {}),
    "mpeg2_hd_mpg.xml": ("HD transport stream", dict(acodec=codec("mp2", "mp2,ac3", False))),
    "mpeg2_ts.xml": ("HD transport stream", {}),
    "mpeg4_hd.xml": ("HD", {}),
    # RM files take no frame over 64 kB, which bigger pictures soon make.
    "rm_hd.xml": ("streaming: Real", dict(s=("1280*720", "640*360,960*540,1280*720", False),
                                          b=("2000",
                                          "4000,3000,2000,1500,1000"))),
    "wmv_hd.xml": ("Windows Media", dict(s=("1920*1080", HD_SIZES, False), b=HD_RATE, vn=False)),
    "xvid_hd.xml": ("HD", dict(b=HD_RATE, **XVID)),
    "divx_hd.xml": ("HD", dict(b=HD_RATE, **DIVX)),
    "imovie.xml": ("general video", dict(s=("640*480", "640*480,720*480,720*576", False),
                                         r=SOURCE_RATE, ab=EDITING_AB)),
    "imovie_hd.xml": ("HD", dict(s=("1280*720", HD_SIZES, False), r=SOURCE_RATE, ab=EDITING_AB)),
    "prores.xml": ("HD", dict(vcodec=codec("prores"), b=None, vprofile=True, aspect=False,
                              r=SOURCE_RATE,
                              sameq=False, an=False, ab=None, expert=None,
                              acodec=codec("pcm_s16le", "pcm_s16le,pcm_s24le", False))),
    "wtv.xml": ("disc: DVD", dict(acodec=codec("ac3", "ac3,mp2", False),
                                  ar=("44100", "48000,44100", False))),
    # iPad
    "iPad_h264.xml": ("phone H.264", dict(fixed_size("1024*768", ("2000", "3000,2500,2000,1500,1000"),
                                                     ("31", "22,30,31")), vprofile=IPAD_MAIN)),
    "iPad_h264_hd.xml": ("tablet HD", dict(ar=("48000", SAMPLE_RATES, False), vprofile=IPAD_MAIN)),
    "iPad_mpeg4.xml": ("phone MPEG-4", fixed_size("1024*768", ("2000",
                                                  "3000,2500,2000,1500,1000"))),
    "iPad2_h264.xml": ("phone H.264", dict(fixed_size("1024*768", ("2000", "3000,2500,2000,1500,1000"),
                                                      ("31", "22,30,31")), vprofile=IPAD_MAIN)),
    "iPad2_h264_hd.xml": ("tablet HD", dict(vprofile=IPAD_MAIN)),
    "iPad2_mpeg4.xml": ("phone MPEG-4", fixed_size("1024*768", ("2000",
                                                   "3000,2500,2000,1500,1000"))),
    "iPad3_1080p.xml": ("tablet HD", dict(s=("1920*1080", "1920*1080,1280*720", True),
                                          b=("6000", "8000,7000,6000,5000,4000"),
                                          level=("31", "30,31,40"),
                                          vprofile=("high", "baseline,main,high"))),
    "iPadmini_h264.xml": ("phone H.264", dict(fixed_size("1024*768", ("2000",
                                                         "3000,2500,2000,1500,1000"),
                                                         ("31", "22,30,31")), vprofile=IPAD_MAIN)),
    # iPhone
    "iPhone_h264.xml": ("phone H.264", {}),
    "iPhone_mpeg4.xml": ("phone MPEG-4", {}),
    "iPhone4_h264.xml": ("phone H.264", fixed_size("960*640", ("1500",
                                                   "2500,2000,1500,1200,1000"),
                                                   ("31", "22,30,31"))),
    "iPhone4_mpeg4.xml": ("phone MPEG-4", fixed_size("960*640", ("1500",
                                                     "2500,2000,1500,1200,1000"))),
    "iPhone5_h264.xml": ("phone H.264", fixed_size("1136*640", ("2000",
                                                   "3000,2500,2000,1500,1000"),
                                                   ("31", "22,30,31"))),
    "iPhone_h264_tv.xml": ("phone H.264", dict(r=SOURCE_RATE, **fixed_size("640*480", None,
                                                                          ("30", "21,22,30")))),
    "iPhone_mpeg4_tv.xml": ("phone MPEG-4", dict(r=SOURCE_RATE, **fixed_size("640*480"))),
    # iPod
    "ipod_h264.xml": ("phone H.264", fixed_size("320*240", ("768", "1000,900,768,512,384"),
                                                ("13", "12,13,21"))),
    "ipod_mpeg4.xml": ("phone MPEG-4", fixed_size("320*240", ("768", "1000,900,768,512,384"))),
    "iPodtouch_h264.xml": ("phone H.264", {}),
    "iPodtouch_mpeg4.xml": ("phone MPEG-4", {}),
    "iPodtouch4_h264.xml": ("phone H.264", fixed_size("960*640", ("1500",
                                                      "2500,2000,1500,1200,1000"),
                                                      ("31", "22,30,31"))),
    "iPodtouch4_mpeg4.xml": ("phone MPEG-4", fixed_size("960*640", ("1500",
                                                        "2500,2000,1500,1200,1000"))),
    "ipod_h264_tv.xml": ("phone H.264", dict(r=SOURCE_RATE, **fixed_size("640*480", None,
                                                                        ("30", "21,22,30")))),
    "ipod_mpeg4_tv.xml": ("phone MPEG-4", dict(r=SOURCE_RATE, **fixed_size("640*480"))),
    "iPodtouch_h264_tv.xml": ("phone H.264", dict(r=SOURCE_RATE, **fixed_size(
        "640*480", None, ("30", "21,22,30")))),
    "iPodtouch_mpeg4_tv.xml": ("phone MPEG-4", dict(r=SOURCE_RATE, **fixed_size("640*480"))),
    # Mobile phones
    "3gpp2.xml": ("3GP stereo", {}),
    "3gpp.xml": ("3GP mono", {}),
    "BlackBerry_3gp.xml": ("3GP stereo", dict(s=("320*240", "176*144,320*240,480*360", False),
                                              bt=True)),
    "BlackBerry_avi.xml": ("phone MPEG-4", dict(vcodec=codec("msmpeg4v2"),
                                                s=("320*240", "320*240,480*360", False),
                                                **MP3_AUDIO)),
    "BlackBerry_mp4.xml": ("phone MPEG-4", dict(s=("480*360", "320*240,480*360", False))),
    "wmv_mobile.xml": ("Windows Media", dict(s=("320*240", "176*144,320*240", False),
                                             b=("512", "768,640,512,384,256"), r=("15", RATES))),
    # Picture and animation
    "flv.xml": ("Flash", {}),
    "flv_h264.xml": ("Flash", dict(vcodec=codec("h264"), acodec=codec("mpeg4aac"),
                                   ab=("128", "192,160,128,96,64"), aspect=True, sameq=True,
                                   an=True, expert={})),
    "image_bmp.xml": ("picture", dict(general="BMP")),
    "image_gif.xml": ("picture", dict(general="GIF")),
    "image_jpeg.xml": ("picture", {}),
    "image_png.xml": ("picture", dict(general="PNG")),
    "swf.xml": ("Flash", {}),
    "swf_html.xml": ("Flash", {}),
    # Portable players
    "archos_mpeg4.xml": ("phone MPEG-4", dict(s=("720*480", "480*272,720*480", False))),
    "archos_h264.xml": ("phone H.264", dict(s=("720*480", "480*272,720*480", False),
                                            level=("30", "21,22,30"))),
    "archos_wmv.xml": ("Windows Media", dict(s=("720*480", "480*272,720*480", False),
                                             summary=None, vn=False)),
    "create_zenvision_mpeg4.xml": ("phone MPEG-4", dict(s=("640*480", "320*240,640*480", False))),
    "create_zenvision_h264.xml": ("phone H.264", dict(s=("640*480", "320*240,640*480", False))),
    "create_zenvision_wmv.xml": ("Windows Media", dict(s=("640*480", "320*240,640*480", False),
                                                       summary=None, vn=False)),
    "create_zenvision_xvid.xml": ("phone MPEG-4", dict(s=("640*480", "320*240,640*480", False),
                                                       **XVID)),
    "iriver_mpeg4.xml": ("phone MPEG-4", dict(s=("320*240", "320*240,480*272", False))),
    "iriver_h264.xml": ("phone H.264", dict(s=("320*240", "320*240,480*272", False),
                                            level=("20", "13,20,21"))),
    "iriver_wmv.xml": ("Windows Media", dict(s=("320*240", "320*240,480*272", False),
                                             summary=None, vn=False)),
    "iriver_xvid.xml": ("phone MPEG-4", dict(s=("320*240", "320*240,480*272", False), **XVID)),
    "dpg.xml": ("dpg", dict(ab=("96", PLAYER_AB_VALUES))),
    "dpg2.xml": ("dpg", dict(ab=("96", PLAYER_AB_VALUES))),
    "dpg3.xml": ("dpg", {}),
    "dpg3_ogg.xml": ("dpg", dict(acodec=codec("vorbis"))),
    "dpg4.xml": ("dpg", dict(acodec=codec("mpeg4aac", "mpeg4aac,mp2", False))),
    # PS3 and PSP
    "ps3h264.xml": ("games console", {}),
    "ps3h264_hd.xml": ("games console", dict(s=("1920*1080", HD_SIZES, False), b=HD_RATE,
                                             level=("40", "31,40,41"))),
    "ps3divx.xml": ("games console", dict(level=None, expert={}, **DIVX)),
    "ps3divx_hd.xml": ("HD", DIVX),
    "ps3mpeg2.xml": ("games console", dict(level=None, expert={}, **dict(MPEG2_PS,
                                                                        ab=CONSOLE_MP2_AB))),
    "ps3mpeg2_hd.xml": ("HD", dict(vcodec=codec("mpeg2video"), **AC3_AUDIO)),
    "ps3mpeg2_hd_ts.xml": ("HD transport stream", {}),
    "ps3wmv.xml": ("games console", dict(vcodec=codec("wmv3x", "wmv1x,wmv2x,wmv3x", False),
                                         level=None, **WMA_AUDIO)),
    "ps3wmv_hd.xml": ("games console", dict(vcodec=codec("wmv3x", "wmv1x,wmv2x,wmv3x", False),
                                            s=("1280*720", HD_SIZES, False), b=HD_RATE,
                                            level=None, **WMA_AUDIO)),
    "ps3xvid.xml": ("games console", dict(level=None, expert={}, **XVID)),
    "ps3xvid_hd.xml": ("HD", XVID),
    "psp_mpeg4.xml": ("phone MPEG-4", dict(s=("480*272", "320*240,368*208,480*272", False),
                                           b=("768", "1000,900,768,512,384"), summary="title")),
    "psph264.xml": ("games console", dict(s=("480*272", "320*240,368*208,480*272", False),
                                          b=("768", "1000,900,768,512,384"),
                                          level=("21", "13,21,30"))),
    "psph264_mini.xml": ("games console", dict(s=("320*240", "320*240", False),
                                               b=("512", "768,640,512,384,256"),
                                               level=("13", "13,21"))),
    "psph264_tv.xml": ("games console", dict(s=("720*480", "720*480", False),
                                             level=("30", "21,30"))),
    # Xbox
    "Xbox_h264.xml": ("games console", dict(expert={})),
    "Xbox_h264_hd.xml": ("games console", dict(s=("1280*720", HD_SIZES, False), b=HD_RATE,
                                               level=("40", "31,40,41"), expert={})),
    "Xbox_mpeg4.xml": ("games console", dict(level=None, expert={}, **MPEG4_TV)),
    "Xbox_mpeg4_hd.xml": ("HD", dict(s=("1280*720", HD_SIZES, False))),
    "Xbox_wmv.xml": ("Windows Media", dict(s=("720*480", DISC_SIZES, False))),
    "Xbox_wmv_hd.xml": ("Windows Media", dict(s=("1280*720", HD_SIZES, False), b=HD_RATE)),
    "Xbox_divx_hd.xml": ("HD", DIVX),
    "Xbox_mpeg2.xml": ("games console", dict(level=None, expert={}, **dict(MPEG2_PS,
                                                                         ab=CONSOLE_MP2_AB))),
    "Xbox_mpeg2_hd.xml": ("HD", dict(vcodec=codec("mpeg2video"), **AC3_AUDIO)),
    "Xbox_mpeg2_hd_ts.xml": ("HD transport stream", {}),
    "Xbox_xvid.xml": ("games console", dict(level=None, expert={}, **XVID)),
    "Xbox_xvid_hd.xml": ("HD", XVID),
    # Zune and Wii
    "zune_mpeg4.xml": ("phone MPEG-4", fixed_size("320*240", ("768", "1000,900,768,512,384"))),
    "zune_h264.xml": ("phone H.264", fixed_size("320*240", ("768", "1000,900,768,512,384"),
                                                ("13", "12,13,21"))),
    "zune_wmv.xml": ("Windows Media", dict(fixed_size("320*240", ("768", "1000,900,768,512,384")),
                                           summary=None, vn=False)),
    "wii-avi.xml": ("general video", dict(vcodec=codec("mjpeg"), s=("640*480", "320*240,640*480",
                                          False), r=SOURCE_RATE, acodec=codec("pcm_s16le"),
                                          ab=None)),
    "wii-mov.xml": ("general video", dict(vcodec=codec("mjpeg"), s=("640*480", "320*240,640*480",
                                          False), r=SOURCE_RATE, acodec=codec("mp3"),
                                          ab=("128", "320,256,128,96,64"))),
}

FAMILIES["dpg"] = dict(
    vcodec=("mpeg1video", "mpeg1video", True), acodec=("mp2", "mp2", True),
    s=("256*192", "256*192", False), b=("256", "512,384,256,192,128"), r=("20", "15,20,24"),
    ab=("128", PLAYER_AB_VALUES), ar=("32000", "32000,22050", False),
    ac=("2 (Stereo)", CHANNELS, False), expert={})

# Rows in which the tags stand whole or as the title alone.
SUMMARY = {"Xbox_wmv_hd.xml": "full", "wmv_hd.xml": "full", "asf.xml": None,
           "wmv_mobile.xml": "full", "Xbox_wmv.xml": "full"}
VN = {"wmv.xml", "wmv_mobile.xml", "Xbox_wmv.xml", "Xbox_wmv_hd.xml"}
NAMED = {row[1] for rows in PROFILES.values() for row in rows}
# Named players that step their audio like the later catalogues.
PLAYERS = {"archos_mpeg4.xml", "create_zenvision_mpeg4.xml", "iriver_mpeg4.xml"}

# ---------------------------------------------------------------------------
# Writing


def attrs(items):
    return "".join(" %s=%s" % (name, quoteattr(value)) for name, value in items)


def element(tag, items=()):
    return "        <%s%s/>" % (tag, attrs(items))


def listed(tag, default, candidates, fixed=False, simple=None, labels=None, values=None):
    items = []
    if default is not None:
        items.append(("value", default))
    items += [("advHasCandidates", "yes"), ("advCandidatesDisplay", candidates)]
    if fixed:
        items.append(("advReadonly", "yes"))
    if simple:
        items += [("simpleName", simple), ("simpleCandidatesDisplay", labels),
                  ("simpleCandidatesValue", values)]
    return element(tag, items)


def unique(values):
    seen = []
    for v in values.split(","):
        if v not in seen:
            seen.append(v)
    return ",".join(seen)


def make_document(name, family, changes):
    p = dict(FAMILIES[family])
    p.update(changes)
    p.setdefault("summary", SUMMARY.get(name))
    if name in SUMMARY:
        p["summary"] = SUMMARY[name]
    p["vn"] = name in VN
    sections = []

    if p.get("general"):
        sections.append(("General", [
            element("pcodec", [("value", p["general"]), ("advReadonly", "yes")]),
            listed("pi", "2", "2,5,10,15,20,30,60,90", simple="Capture Interval",
                   labels="2,5,10,15,20,30,60,90", values="2,5,10,15,20,30,60,90")]))
    summary = p.get("summary")
    if summary:
        rows = [element("title", [("value", "")])]
        if summary == "full":
            rows += [element(tag, [("value", "")]) for tag in TAGS[1:]]
            rows.insert(5, listed("genre", None, "," + ",".join(GENRES)))
        sections.append(("Summary", rows))

    video = []
    if p.get("vcodec"):
        video.append(listed("vcodec", *p["vcodec"]))
    if p.get("s"):
        default, candidates, fixed = p["s"]
        video.append(listed("s", default, candidates, fixed, "Video Size", candidates, candidates))
    if p.get("general"):
        sections.append(("Video", video))
    else:
        if p.get("b"):
            default, values = p["b"]
            if default == "text":
                video.append(element("b", [("value", values), ("advReadonly", "yes")]))
            else:
                video.append(listed("b", default, unique(values), False, "Video Quality", QUALITY,
                                    values))
        if p.get("bt"):
            video.append(element("bt", [("value", "60")]))
        if p.get("r"):
            video.append(listed("r", *p["r"]))
        if p.get("aspect", True) and p.get("r"):
            video.append(listed("aspect", "Auto", "Auto,4:3,16:9"))
        if p.get("sameq", True) and p.get("r"):
            video.append(element("sameq"))
        if p.get("level"):
            video.append(listed("level", *p["level"]))
        if p.get("vprofile") is True:
            video.append(listed("vprofile", "Standard", "Proxy,LT,Standard,HQ"))
        elif p.get("vprofile"):
            video.append(listed("vprofile", *p["vprofile"]))
        if p["vn"]:
            video.append(element("vn"))
        if video:
            sections.append(("Video", video))

    audio = []
    if p.get("acodec"):
        audio.append(listed("acodec", *p["acodec"]))
        if p.get("ab"):
            default, values = p["ab"]
            if len(set(values.split(","))) < len(values.split(",")) and \
                    (name not in NAMED or name in PLAYERS):
                values = PLAYER_AB_VALUES
            audio.append(listed("ab", default, unique(values), False, "Audio Quality", QUALITY,
                                values))
        default, candidates, fixed = p["ar"]
        audio.append(listed("ar", default, candidates, fixed))
        default, candidates, fixed = p["ac"]
        audio.append(listed("ac", default, candidates, fixed, "Channels", candidates, candidates))
        audio.append(listed("vol", "100%", VOLUMES))
        if p.get("an", True) and p.get("r"):
            audio.append(element("an"))
        sections.append(("Audio", audio))

    expert = p.get("expert")
    if expert is not None and p.get("r"):
        order = ["pix_fmt", "deinterlace"] + EXPERT_TEXT[1:] + EXPERT_FLAGS[1:]
        if name in CONSOLE_ORDER:
            order = ["bitexact"] + [key for key in order if key != "bitexact"]
        rows = []
        for key in order:
            if key in EXPERT_FLAGS:
                rows.append(element(key))
            else:
                rows.append(element(key, [("value", expert.get(key, ""))]))
        sections.append(("Expert", rows))

    out = ['<?xml version="1.0" encoding="UTF-8"?>', "<Parameter>"]
    for section, rows in sections:
        out.append("    <Section value=%s>" % quoteattr(section))
        out += rows
        out.append("    </Section>")
    out.append("</Parameter>")
    return "\n".join(out) + "\n"


def codec_text(file_name):
    lower = file_name.lower()
    for marker, text in (("h264", "H.264/MPEG-4 AVC"), ("1080p", "H.264/MPEG-4 AVC"),
                         ("wmv", "WMV"), ("xvid", "Xvid"), ("divx", "DivX"), ("mpeg2", "MPEG2"),
                         ("3gp", "3GP"), ("avi", "MPEG4 AVI"), ("asf", "ASF"), ("mov", "MPEG4"),
                         ("rm", "RealVideo"), ("ts", "MPEG2-TS")):
        if marker in lower:
            return text
    return "MPEG4"


def profile_desc(group_id, file_name, short, desc):
    if desc is not None:
        return desc
    if group_id not in (13, 17, 19):
        return "%s profile optimized for %s" % (codec_text(file_name), short)
    return "%s profile optimized for %s" % (codec_text(file_name), DEVICES.get(group_id, short))


def make_texts():
    texts = [name for _, name, _ in GROUPS]
    for group_id, _, _ in GROUPS:
        for _, file_name, title, _, _, short, desc in PROFILES.get(group_id, []):
            texts += [title, profile_desc(group_id, file_name, short, desc)]
    out = ["// Written by resources/profiles/src/make_profiles.py; read by lupdate only, never",
           "// compiled: the catalogue's texts, which live in its XML.",
           "#include <QtGlobal>", "", "[[maybe_unused]] static const char *const catalogueTexts[] = {"]
    seen = set()
    for text in texts:
        if text not in seen:
            seen.add(text)
            out.append('    QT_TRANSLATE_NOOP("Profile", %s),' % json.dumps(text, ensure_ascii=False))
    out.append("};")
    return "\n".join(out) + "\n"


def make_catalogue():
    def field(tag, value, indent="        "):
        return "%s<%s value=%s/>" % (indent, tag, quoteattr(value))

    out = ['<?xml version="1.0" encoding="UTF-8"?>', '<Groups version="1" default="1,68">',
           '    <!-- The built-in catalogue; written by src/make_profiles.py. -->']
    for group_id, name, icon in GROUPS:
        out.append("    <Group>")
        out += [field("Name", name), field("Id", str(group_id)), field("IconName", icon)]
        for pid, file_name, title, ext, icon_name, short, desc in PROFILES.get(group_id, []):
            desc = profile_desc(group_id, file_name, short, desc)
            icon_path = icon_name + ".png" if icon_name.startswith("small/") else \
                "big/%s.png" % icon_name
            pad = "            "
            out.append("        <Profile>")
            out += [field("Id", str(pid), pad), field("Name", title, pad), field("Desc", desc, pad),
                    field("SName", short, pad), field("ShortCut", SHORTCUTS.get(pid, ""), pad),
                    field("ExtName", ext, pad), field("Format", FORMATS.get(pid, ext), pad),
                    field("FileName", file_name, pad), field("IconName", icon_path, pad),
                    field("Recommended", "true" if pid in RECOMMENDED else "", pad)]
            out.append("        </Profile>")
        out.append("    </Group>")
    out.append("</Groups>")
    return "\n".join(out) + "\n"


def main():
    named = [row[1] for rows in PROFILES.values() for row in rows]
    assert len(GROUPS) == 16 and len(named) == 85, (len(GROUPS), len(named))
    missing = [name for name in named if name not in DOCUMENTS]
    assert not missing, missing
    assert len(DOCUMENTS) == 144, len(DOCUMENTS)
    for old in OUT.glob("*.xml"):
        old.unlink()
    (OUT / "Group.xml").write_text(make_catalogue(), encoding="utf-8")
    TEXTS.write_text(make_texts(), encoding="utf-8")
    for name, (family, changes) in sorted(DOCUMENTS.items()):
        (OUT / name).write_text(make_document(name, family, changes), encoding="utf-8")


if __name__ == "__main__":
    main()
