<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>CMainWnd</name>
    <message>
        <source>Tessarine Kestrove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LTR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display Original Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display Output Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1. Click &quot;%1 Open DVD %2&quot; to Open DVD.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2. Click &quot;%1 Trim&quot; or &quot;%2 Crop&quot; to edit video file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3. Select output format from the &quot;Profile&quot; list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4. Click &quot;%1&quot; to convert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please Select Output Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a DVD drive or a DVD folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open IFO Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IFO Files (*.ifo *.IFO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The IFO File is invalid.
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Following files can not be loaded(They are not valid media files or their formats are not supported):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supported Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supported Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source file %1 not found!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not save the image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elapsed Time: %1 Remaining Time: %2 Progress: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conversion finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Succeeded: %1, failed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your profiles could not be saved.
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure to apply current profile settings to all items?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CPlayPauseButton</name>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CProfileCombo</name>
    <message>
        <source>Profile</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CProfileMenu</name>
    <message>
        <source>Recommended</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CSearchLineEdit</name>
    <message>
        <source>Clear the search</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CustomItemWidget</name>
    <message>
        <source>Convert This Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Converting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Subtitle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pending...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Succeed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?
Some of the unfinished files cannot be played properly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlayerScreen</name>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Profile</name>
    <message>
        <source>User Defined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Android</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apple TV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HD Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPhone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPod</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mobile Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture and Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portable Multimedia Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PS3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PSP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xbox HD Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ASF - Advanced Streaming Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced Streaming Format, a Windows Media container.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AVI - Audio-Video Interleaved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio-Video Interleaved, the classic Windows video format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DivX Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DivX video in an AVI container.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DV - Digital Video format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digital Video format of camcorders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DVD Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG-2 video for DVD players.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOV - QuickTime</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QuickTime movie format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG-4 video format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG1 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG-1 video format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG2 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG-2 video format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC video format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RM - Real Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RealVideo streaming format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VCD Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG-1 video for Video CD players.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WMV - Windows Media Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows Media Video format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xvid Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xvid video in an AVI container.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matroska Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matroska video format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebM Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebM video format for the web.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AC3 - Dolby Digital AC-3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dolby Digital AC-3 audio format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AIFF - Audio Interchange File Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Interchange File Format, uncompressed audio.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ALAC - Apple Lossless Audio Codec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apple Lossless audio format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLAC - Free Lossless Audio Codec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SUN AU Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sun AU audio format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>M4A - MPEG-4 Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG-4 Audio format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP2 - MPEG Layer-2 Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG Layer-2 audio format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP3 - MPEG Layer-3 Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG Layer-3 audio format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OGG - Ogg Vorbis Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ogg Vorbis audio format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RA - RealAudio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RealAudio streaming format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WAV - Waveform Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waveform audio format, uncompressed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WMA - Windows Media Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows Media Audio format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Android MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Android</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samsung Galaxy S3 H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Galaxy S3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samsung Galaxy Tab MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Galaxy Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apple TV H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apple TV H.264 HD Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV HD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apple TV 3 H.264 1080P Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apple TV MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Apple TV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HD ASF Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ASF profile optimized for HD players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HD AVI Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for HD players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HD H.264/MPEG-4 AVC Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for HD players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HD Quick Time Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for HD players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG2-PS HD Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG2 profile optimized for HD players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG2-TS HD Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 HD Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RM HD Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RealVideo profile optimized for HD players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HD WMV Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WMV profile optimized for HD players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XVID HD Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xvid profile optimized for HD players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPad H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPad H.264 HD Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPad MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPad 2 H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPad 2 H.264 HD Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPad 2 MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPad 3 1080P Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPad mini H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPhone H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPhone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPhone MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPhone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPhone 4 H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPhone 4 MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPhone 5 H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPod H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPod MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPod touch H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod touch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPod touch MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod touch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPod touch 4 H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPod touch 4 MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Stereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3GP profile optimized for mobile phones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Mono</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BlackBerry 3GP Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BlackBerry AVI Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for mobile phones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BlackBerry MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for mobile phones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WMV Video for Mobile Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WMV profile optimized for mobile phones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLV - Flash Video Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flash video format for web pages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture - BMP format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures captured from the video as BMP files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture - GIF Animation format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An animated GIF picture made from the video.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture - JPEG format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures captured from the video as JPEG files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture - PNG format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures captured from the video as PNG files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SWF - SWF Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shockwave Flash animation format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Archos MPEG4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for portable players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creative ZEN MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iRiver MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PS3 H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for PS3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PSP MPEG-4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for PSP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xbox360 H.264 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Xbox360</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xbox360 MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Xbox360</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xbox360 WMV Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WMV profile optimized for Xbox360</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zune MPEG4 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Zune</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileGroupLoader</name>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileMenu</name>
    <message>
        <source>Previous group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QtColorComboBox</name>
    <message>
        <source>More...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User color %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Color 99</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QxLanguage</name>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QxSkin</name>
    <message>
        <source>&amp;Skin</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingDialog</name>
    <message>
        <source>Advanced Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Quality:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Quality:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply To All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interval</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select how many seconds to capture one picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Codec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the video codec (methods of compression for digital videos, e.g., MPEG-4, H.264 or WMV) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set frame size. The format is &apos;width x height&apos; like 320x240, 640x480 or 1920x1080 pixels. You can choose an similar size for your playback device screen resolution.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Bitrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the video bit rate in kilobit per second. This is the key factor that is related to the output file size and video quality -- the larger the bit rate, the better the video quality and the bigger the output file you will get, and vice versa.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set how many frames should be displayed per second (FPS). Higher frame rate increases the smoothness when played back, and usually 25--30 frame per second can provide you with a very good viewing experience.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set width to height ratio according to the screen aspect of your playback device . (4:3, 16:9 or 1.3333, 1.7777).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This function enables you to get good output video quality as the source. (Sometimes this function may bring you a large output file, or make the converting time pretty long.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select zoom mode, that is how to deal with the blank edge when the aspect of the source and the destination is different.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Codec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the audio codec (methods of compression for digital audio, e.g., MP3, PCM or AC3) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set audio bitrate (in kbit/s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the audio sampling frequency (the number of samples per second) (default = 44100 Hz).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set number of audio channels, 1(Mono), 2(Stereo) and 5.1(Dolby Digital) are commonly used for general digital audio.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the output volume.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Author</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the author</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the copyright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Album</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Genre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Composer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orig. Artist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoded by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Url</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expert options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Title_%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Utils</name>
    <message>
        <source>%1x%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ZB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YB</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>mainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open DVD...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open DVD Folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open IFO Files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Project...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Selected Item(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uncheck All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert Check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge Selected into One</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split by Chapter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Output Profile...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply Profile to All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Snapshot Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Snapshot Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BMP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smart Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermark...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effect...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear All Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Track...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitle...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause Checked Item(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Source File Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Output File Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Post Task Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shut Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stand By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open DVD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Trim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Merge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Destination:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert Selected Item(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause Selected Item(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Selected Item(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert All Item(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause All Item(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop All Item(s)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>saveAsDlg</name>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>splash</name>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
