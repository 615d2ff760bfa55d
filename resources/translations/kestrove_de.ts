<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>CMainWnd</name>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>LTR</source>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Display Original Frame</source>
        <translation>Originalbild anzeigen</translation>
    </message>
    <message>
        <source>Display Output Frame</source>
        <translation>Ausgabebild anzeigen</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Speichern unter...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Umbenennen...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>1. Click &quot;%1 Open DVD %2&quot; to Open DVD.</source>
        <translation>1. Klicken Sie auf „%1 DVD öffnen %2“, um eine DVD zu öffnen.</translation>
    </message>
    <message>
        <source>2. Click &quot;%1 Trim&quot; or &quot;%2 Crop&quot; to edit video file.</source>
        <translation>2. Klicken Sie auf „%1 Trimmen“ oder „%2 Zuschneiden“, um die Videodatei zu bearbeiten.</translation>
    </message>
    <message>
        <source>3. Select output format from the &quot;Profile&quot; list.</source>
        <translation>3. Wählen Sie das Ausgabeformat aus der Liste „Profil“.</translation>
    </message>
    <message>
        <source>4. Click &quot;%1&quot; to convert.</source>
        <translation>4. Klicken Sie auf „%1“, um zu konvertieren.</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?</source>
        <translation>Möchten Sie die Konvertierung wirklich beenden?</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Please Select Output Folder</source>
        <translation>Bitte Ausgabeordner auswählen</translation>
    </message>
    <message>
        <source>Please select a DVD drive or a DVD folder.</source>
        <translation>Bitte wählen Sie ein DVD-Laufwerk oder einen DVD-Ordner.</translation>
    </message>
    <message>
        <source>Open IFO Files</source>
        <translation>IFO-Dateien öffnen</translation>
    </message>
    <message>
        <source>IFO Files (*.ifo *.IFO)</source>
        <translation>IFO-Dateien (*.ifo *.IFO)</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen...</translation>
    </message>
    <message>
        <source>The IFO File is invalid.
%1</source>
        <translation>Die IFO-Datei ist ungültig.
%1</translation>
    </message>
    <message>
        <source>Following files can not be loaded(They are not valid media files or their formats are not supported):</source>
        <translation>Folgende Dateien können nicht geladen werden (sie sind keine gültigen Mediendateien oder ihr Format wird nicht unterstützt):</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>Alle unterstützten Formate</translation>
    </message>
    <message>
        <source>Supported Video</source>
        <translation>Unterstützte Videos</translation>
    </message>
    <message>
        <source>Supported Audio</source>
        <translation>Unterstützte Audiodateien</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Select a Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Audio Tracks</source>
        <translation>Tonspuren</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Source file %1 not found!</source>
        <translation>Quelldatei %1 nicht gefunden!</translation>
    </message>
    <message>
        <source>Can not save the image.</source>
        <translation>Das Bild kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>Markierte Elemente konvertieren</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>Markierte Elemente stoppen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Elapsed Time: %1 Remaining Time: %2 Progress: </source>
        <translation>Vergangene Zeit: %1 Restzeit: %2 Fortschritt: </translation>
    </message>
    <message>
        <source>Conversion finished</source>
        <translation>Konvertierung abgeschlossen</translation>
    </message>
    <message>
        <source>Succeeded: %1, failed: %2</source>
        <translation>Erfolgreich: %1, fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Your profiles could not be saved.
%1</source>
        <translation>Ihre Profile konnten nicht gespeichert werden.
%1</translation>
    </message>
    <message>
        <source>Are you sure to apply current profile settings to all items?</source>
        <translation>Sollen die Einstellungen des aktuellen Profils wirklich auf alle Einträge angewendet werden?</translation>
    </message>
</context>
<context>
    <name>CPlayPauseButton</name>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
</context>
<context>
    <name>CProfileCombo</name>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
</context>
<context>
    <name>CProfileMenu</name>
    <message>
        <source>Recommended</source>
        <translation>Empfohlen</translation>
    </message>
</context>
<context>
    <name>CSearchLineEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>Suche leeren</translation>
    </message>
</context>
<context>
    <name>CustomItemWidget</name>
    <message>
        <source>Convert This Item</source>
        <translation>Dieses Element konvertieren</translation>
    </message>
    <message>
        <source>Audio Track</source>
        <translation>Tonspur</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Output Name</source>
        <translation>Ausgabename</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Stop Converting</source>
        <translation>Konvertierung abbrechen</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Aufklappen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Verbleibend</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Edit Audio</source>
        <translation>Audio bearbeiten</translation>
    </message>
    <message>
        <source>Edit Subtitle</source>
        <translation>Untertitel bearbeiten</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Wartet...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Pending...</source>
        <translation>Ausstehend...</translation>
    </message>
    <message>
        <source>Succeed</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Zuklappen</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?
Some of the unfinished files cannot be played properly.</source>
        <translation>Möchten Sie die Konvertierung wirklich abbrechen?
Einige der unfertigen Dateien lassen sich nicht richtig abspielen.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsetzen</translation>
    </message>
</context>
<context>
    <name>PlayerScreen</name>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
</context>
<context>
    <name>Profile</name>
    <message>
        <source>User Defined</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>General Video</source>
        <translation>Allgemeines Video</translation>
    </message>
    <message>
        <source>General Audio</source>
        <translation>Allgemeines Audio</translation>
    </message>
    <message>
        <source>Android</source>
        <translation>Android</translation>
    </message>
    <message>
        <source>Apple TV</source>
        <translation>Apple TV</translation>
    </message>
    <message>
        <source>HD Video</source>
        <translation>HD-Video</translation>
    </message>
    <message>
        <source>iPad</source>
        <translation>iPad</translation>
    </message>
    <message>
        <source>iPhone</source>
        <translation>iPhone</translation>
    </message>
    <message>
        <source>iPod</source>
        <translation>iPod</translation>
    </message>
    <message>
        <source>Mobile Phone</source>
        <translation>Mobiltelefon</translation>
    </message>
    <message>
        <source>Picture and Animation</source>
        <translation>Bild und Animation</translation>
    </message>
    <message>
        <source>Portable Multimedia Device</source>
        <translation>Tragbares Multimedia-Gerät</translation>
    </message>
    <message>
        <source>PS3</source>
        <translation>PS3</translation>
    </message>
    <message>
        <source>PSP</source>
        <translation>PSP</translation>
    </message>
    <message>
        <source>Xbox HD Video</source>
        <translation>Xbox-HD-Video</translation>
    </message>
    <message>
        <source>Zune</source>
        <translation>Zune</translation>
    </message>
    <message>
        <source>ASF - Advanced Streaming Format</source>
        <translation>ASF - Advanced Streaming Format</translation>
    </message>
    <message>
        <source>Advanced Streaming Format, a Windows Media container.</source>
        <translation>Advanced Streaming Format, ein Windows-Media-Container.</translation>
    </message>
    <message>
        <source>AVI - Audio-Video Interleaved</source>
        <translation>AVI - Audio-Video Interleaved</translation>
    </message>
    <message>
        <source>Audio-Video Interleaved, the classic Windows video format.</source>
        <translation>Audio-Video Interleaved, das klassische Videoformat von Windows.</translation>
    </message>
    <message>
        <source>DivX Video</source>
        <translation>DivX-Video</translation>
    </message>
    <message>
        <source>DivX video in an AVI container.</source>
        <translation>DivX-Video in einem AVI-Container.</translation>
    </message>
    <message>
        <source>DV - Digital Video format</source>
        <translation>DV - Digital-Video-Format</translation>
    </message>
    <message>
        <source>Digital Video format of camcorders.</source>
        <translation>Digitales Videoformat von Camcordern.</translation>
    </message>
    <message>
        <source>DVD Video</source>
        <translation>DVD-Video</translation>
    </message>
    <message>
        <source>MPEG-2 video for DVD players.</source>
        <translation>MPEG-2-Video für DVD-Player.</translation>
    </message>
    <message>
        <source>MOV - QuickTime</source>
        <translation>MOV - QuickTime</translation>
    </message>
    <message>
        <source>QuickTime movie format.</source>
        <translation>QuickTime-Filmformat.</translation>
    </message>
    <message>
        <source>MPEG4 Video</source>
        <translation>MPEG4-Video</translation>
    </message>
    <message>
        <source>MPEG-4 video format.</source>
        <translation>MPEG-4-Videoformat.</translation>
    </message>
    <message>
        <source>MPEG1 Video</source>
        <translation>MPEG1-Video</translation>
    </message>
    <message>
        <source>MPEG-1 video format.</source>
        <translation>MPEG-1-Videoformat.</translation>
    </message>
    <message>
        <source>MPEG2 Video</source>
        <translation>MPEG2-Video</translation>
    </message>
    <message>
        <source>MPEG-2 video format.</source>
        <translation>MPEG-2-Videoformat.</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC Video</source>
        <translation>H.264/MPEG-4-AVC-Video</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC video format.</source>
        <translation>H.264/MPEG-4-AVC-Videoformat.</translation>
    </message>
    <message>
        <source>RM - Real Video</source>
        <translation>RM - Real Video</translation>
    </message>
    <message>
        <source>RealVideo streaming format.</source>
        <translation>RealVideo-Streamingformat.</translation>
    </message>
    <message>
        <source>VCD Video</source>
        <translation>VCD-Video</translation>
    </message>
    <message>
        <source>MPEG-1 video for Video CD players.</source>
        <translation>MPEG-1-Video für Video-CD-Player.</translation>
    </message>
    <message>
        <source>WMV - Windows Media Video</source>
        <translation>WMV - Windows Media Video</translation>
    </message>
    <message>
        <source>Windows Media Video format.</source>
        <translation>Windows-Media-Video-Format.</translation>
    </message>
    <message>
        <source>Xvid Video</source>
        <translation>Xvid-Video</translation>
    </message>
    <message>
        <source>Xvid video in an AVI container.</source>
        <translation>Xvid-Video in einem AVI-Container.</translation>
    </message>
    <message>
        <source>Matroska Video</source>
        <translation>Matroska-Video</translation>
    </message>
    <message>
        <source>Matroska video format.</source>
        <translation>Matroska-Videoformat.</translation>
    </message>
    <message>
        <source>WebM Video</source>
        <translation>WebM-Video</translation>
    </message>
    <message>
        <source>WebM video format for the web.</source>
        <translation>WebM-Videoformat für das Web.</translation>
    </message>
    <message>
        <source>AC3 - Dolby Digital AC-3</source>
        <translation>AC3 - Dolby Digital AC-3</translation>
    </message>
    <message>
        <source>Dolby Digital AC-3 audio format.</source>
        <translation>Audioformat Dolby Digital AC-3.</translation>
    </message>
    <message>
        <source>AIFF - Audio Interchange File Format</source>
        <translation>AIFF - Audio Interchange File Format</translation>
    </message>
    <message>
        <source>Audio Interchange File Format, uncompressed audio.</source>
        <translation>Audio Interchange File Format, unkomprimiertes Audio.</translation>
    </message>
    <message>
        <source>ALAC - Apple Lossless Audio Codec</source>
        <translation>ALAC - Apple Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Apple Lossless audio format.</source>
        <translation>Audioformat Apple Lossless.</translation>
    </message>
    <message>
        <source>FLAC - Free Lossless Audio Codec</source>
        <translation>FLAC - Free Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec format.</source>
        <translation>Verlustfreies Audioformat Free Lossless Audio Codec.</translation>
    </message>
    <message>
        <source>SUN AU Format</source>
        <translation>SUN-AU-Format</translation>
    </message>
    <message>
        <source>Sun AU audio format.</source>
        <translation>Sun-AU-Audioformat.</translation>
    </message>
    <message>
        <source>M4A - MPEG-4 Audio</source>
        <translation>M4A - MPEG-4-Audio</translation>
    </message>
    <message>
        <source>MPEG-4 Audio format.</source>
        <translation>MPEG-4-Audioformat.</translation>
    </message>
    <message>
        <source>MP2 - MPEG Layer-2 Audio</source>
        <translation>MP2 - MPEG-Layer-2-Audio</translation>
    </message>
    <message>
        <source>MPEG Layer-2 audio format.</source>
        <translation>MPEG-Layer-2-Audioformat.</translation>
    </message>
    <message>
        <source>MP3 - MPEG Layer-3 Audio</source>
        <translation>MP3 - MPEG-Layer-3-Audio</translation>
    </message>
    <message>
        <source>MPEG Layer-3 audio format.</source>
        <translation>MPEG-Layer-3-Audioformat.</translation>
    </message>
    <message>
        <source>OGG - Ogg Vorbis Audio</source>
        <translation>OGG - Ogg-Vorbis-Audio</translation>
    </message>
    <message>
        <source>Ogg Vorbis audio format.</source>
        <translation>Ogg-Vorbis-Audioformat.</translation>
    </message>
    <message>
        <source>RA - RealAudio</source>
        <translation>RA - RealAudio</translation>
    </message>
    <message>
        <source>RealAudio streaming format.</source>
        <translation>RealAudio-Streamingformat.</translation>
    </message>
    <message>
        <source>WAV - Waveform Audio</source>
        <translation>WAV - Waveform Audio</translation>
    </message>
    <message>
        <source>Waveform audio format, uncompressed.</source>
        <translation>Waveform-Audioformat, unkomprimiert.</translation>
    </message>
    <message>
        <source>WMA - Windows Media Audio</source>
        <translation>WMA - Windows Media Audio</translation>
    </message>
    <message>
        <source>Windows Media Audio format.</source>
        <translation>Windows-Media-Audio-Format.</translation>
    </message>
    <message>
        <source>Android MPEG4 Video</source>
        <translation>MPEG4-Video für Android</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Android</source>
        <translation>MPEG4-Profil, optimiert für Android</translation>
    </message>
    <message>
        <source>Samsung Galaxy S3 H.264 Video</source>
        <translation>H.264-Video für Samsung Galaxy S3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Galaxy S3</source>
        <translation>H.264/MPEG-4-AVC-Profil, optimiert für Galaxy S3</translation>
    </message>
    <message>
        <source>Samsung Galaxy Tab MPEG4 Video</source>
        <translation>MPEG4-Video für Samsung Galaxy Tab</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Galaxy Tab</source>
        <translation>MPEG4-Profil, optimiert für Galaxy Tab</translation>
    </message>
    <message>
        <source>Apple TV H.264 Video</source>
        <translation>H.264-Video für Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV</source>
        <translation>H.264/MPEG-4-AVC-Profil, optimiert für Apple TV</translation>
    </message>
    <message>
        <source>Apple TV H.264 HD Video</source>
        <translation>H.264-HD-Video für Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV HD</source>
        <translation>H.264/MPEG-4-AVC-Profil, optimiert für Apple TV HD</translation>
    </message>
    <message>
        <source>Apple TV 3 H.264 1080P Video</source>
        <translation>H.264-1080P-Video für Apple TV 3</translation>
    </message>
    <message>
        <source>Apple TV MPEG4 Video</source>
        <translation>MPEG4-Video für Apple TV</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Apple TV</source>
        <translation>MPEG4-Profil, optimiert für Apple TV</translation>
    </message>
    <message>
        <source>HD ASF Video</source>
        <translation>HD-ASF-Video</translation>
    </message>
    <message>
        <source>ASF profile optimized for HD players</source>
        <translation>ASF-Profil, optimiert für HD-Player</translation>
    </message>
    <message>
        <source>HD AVI Video</source>
        <translation>HD-AVI-Video</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for HD players</source>
        <translation>MPEG4-AVI-Profil, optimiert für HD-Player</translation>
    </message>
    <message>
        <source>HD H.264/MPEG-4 AVC Video</source>
        <translation>HD-H.264/MPEG-4-AVC-Video</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for HD players</source>
        <translation>H.264/MPEG-4-AVC-Profil, optimiert für HD-Player</translation>
    </message>
    <message>
        <source>HD Quick Time Video</source>
        <translation>HD-QuickTime-Video</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for HD players</source>
        <translation>MPEG4-Profil, optimiert für HD-Player</translation>
    </message>
    <message>
        <source>MPEG2-PS HD Video</source>
        <translation>MPEG2-PS-HD-Video</translation>
    </message>
    <message>
        <source>MPEG2 profile optimized for HD players</source>
        <translation>MPEG2-Profil, optimiert für HD-Player</translation>
    </message>
    <message>
        <source>MPEG2-TS HD Video</source>
        <translation>MPEG2-TS-HD-Video</translation>
    </message>
    <message>
        <source>MPEG4 HD Video</source>
        <translation>MPEG4-HD-Video</translation>
    </message>
    <message>
        <source>RM HD Video</source>
        <translation>RM-HD-Video</translation>
    </message>
    <message>
        <source>RealVideo profile optimized for HD players</source>
        <translation>RealVideo-Profil, optimiert für HD-Player</translation>
    </message>
    <message>
        <source>HD WMV Video</source>
        <translation>HD-WMV-Video</translation>
    </message>
    <message>
        <source>WMV profile optimized for HD players</source>
        <translation>WMV-Profil, optimiert für HD-Player</translation>
    </message>
    <message>
        <source>XVID HD Video</source>
        <translation>XVID-HD-Video</translation>
    </message>
    <message>
        <source>Xvid profile optimized for HD players</source>
        <translation>Xvid-Profil, optimiert für HD-Player</translation>
    </message>
    <message>
        <source>iPad H.264 Video</source>
        <translation>H.264-Video für iPad</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPad</source>
        <translation>H.264/MPEG-4-AVC-Profil, optimiert für iPad</translation>
    </message>
    <message>
        <source>iPad H.264 HD Video</source>
        <translation>H.264-HD-Video für iPad</translation>
    </message>
    <message>
        <source>iPad MPEG4 Video</source>
        <translation>MPEG4-Video für iPad</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPad</source>
        <translation>MPEG4-Profil, optimiert für iPad</translation>
    </message>
    <message>
        <source>iPad 2 H.264 Video</source>
        <translation>H.264-Video für iPad 2</translation>
    </message>
    <message>
        <source>iPad 2 H.264 HD Video</source>
        <translation>H.264-HD-Video für iPad 2</translation>
    </message>
    <message>
        <source>iPad 2 MPEG4 Video</source>
        <translation>MPEG4-Video für iPad 2</translation>
    </message>
    <message>
        <source>iPad 3 1080P Video</source>
        <translation>1080P-Video für iPad 3</translation>
    </message>
    <message>
        <source>iPad mini H.264 Video</source>
        <translation>H.264-Video für iPad mini</translation>
    </message>
    <message>
        <source>iPhone H.264 Video</source>
        <translation>H.264-Video für iPhone</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPhone</source>
        <translation>H.264/MPEG-4-AVC-Profil, optimiert für iPhone</translation>
    </message>
    <message>
        <source>iPhone MPEG4 Video</source>
        <translation>MPEG4-Video für iPhone</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPhone</source>
        <translation>MPEG4-Profil, optimiert für iPhone</translation>
    </message>
    <message>
        <source>iPhone 4 H.264 Video</source>
        <translation>H.264-Video für iPhone 4</translation>
    </message>
    <message>
        <source>iPhone 4 MPEG4 Video</source>
        <translation>MPEG4-Video für iPhone 4</translation>
    </message>
    <message>
        <source>iPhone 5 H.264 Video</source>
        <translation>H.264-Video für iPhone 5</translation>
    </message>
    <message>
        <source>iPod H.264 Video</source>
        <translation>H.264-Video für iPod</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod</source>
        <translation>H.264/MPEG-4-AVC-Profil, optimiert für iPod</translation>
    </message>
    <message>
        <source>iPod MPEG4 Video</source>
        <translation>MPEG4-Video für iPod</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod</source>
        <translation>MPEG4-Profil, optimiert für iPod</translation>
    </message>
    <message>
        <source>iPod touch H.264 Video</source>
        <translation>H.264-Video für iPod touch</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod touch</source>
        <translation>H.264/MPEG-4-AVC-Profil, optimiert für iPod touch</translation>
    </message>
    <message>
        <source>iPod touch MPEG4 Video</source>
        <translation>MPEG4-Video für iPod touch</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod touch</source>
        <translation>MPEG4-Profil, optimiert für iPod touch</translation>
    </message>
    <message>
        <source>iPod touch 4 H.264 Video</source>
        <translation>H.264-Video für iPod touch 4</translation>
    </message>
    <message>
        <source>iPod touch 4 MPEG4 Video</source>
        <translation>MPEG4-Video für iPod touch 4</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Stereo</source>
        <translation>3GP-Video für Mobiltelefone - Stereo</translation>
    </message>
    <message>
        <source>3GP profile optimized for mobile phones</source>
        <translation>3GP-Profil, optimiert für Mobiltelefone</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Mono</source>
        <translation>3GP-Video für Mobiltelefone - Mono</translation>
    </message>
    <message>
        <source>BlackBerry 3GP Video</source>
        <translation>3GP-Video für BlackBerry</translation>
    </message>
    <message>
        <source>BlackBerry AVI Video</source>
        <translation>AVI-Video für BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for mobile phones</source>
        <translation>MPEG4-AVI-Profil, optimiert für Mobiltelefone</translation>
    </message>
    <message>
        <source>BlackBerry MPEG4 Video</source>
        <translation>MPEG4-Video für BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for mobile phones</source>
        <translation>MPEG4-Profil, optimiert für Mobiltelefone</translation>
    </message>
    <message>
        <source>WMV Video for Mobile Phone</source>
        <translation>WMV-Video für Mobiltelefone</translation>
    </message>
    <message>
        <source>WMV profile optimized for mobile phones</source>
        <translation>WMV-Profil, optimiert für Mobiltelefone</translation>
    </message>
    <message>
        <source>FLV - Flash Video Format</source>
        <translation>FLV - Flash-Video-Format</translation>
    </message>
    <message>
        <source>Flash video format for web pages.</source>
        <translation>Flash-Videoformat für Webseiten.</translation>
    </message>
    <message>
        <source>Picture - BMP format</source>
        <translation>Bild - BMP-Format</translation>
    </message>
    <message>
        <source>Pictures captured from the video as BMP files.</source>
        <translation>Aus dem Video aufgenommene Bilder als BMP-Dateien.</translation>
    </message>
    <message>
        <source>Picture - GIF Animation format</source>
        <translation>Bild - GIF-Animationsformat</translation>
    </message>
    <message>
        <source>An animated GIF picture made from the video.</source>
        <translation>Ein aus dem Video erstelltes animiertes GIF-Bild.</translation>
    </message>
    <message>
        <source>Picture - JPEG format</source>
        <translation>Bild - JPEG-Format</translation>
    </message>
    <message>
        <source>Pictures captured from the video as JPEG files.</source>
        <translation>Aus dem Video aufgenommene Bilder als JPEG-Dateien.</translation>
    </message>
    <message>
        <source>Picture - PNG format</source>
        <translation>Bild - PNG-Format</translation>
    </message>
    <message>
        <source>Pictures captured from the video as PNG files.</source>
        <translation>Aus dem Video aufgenommene Bilder als PNG-Dateien.</translation>
    </message>
    <message>
        <source>SWF - SWF Format</source>
        <translation>SWF - SWF-Format</translation>
    </message>
    <message>
        <source>Shockwave Flash animation format.</source>
        <translation>Shockwave-Flash-Animationsformat.</translation>
    </message>
    <message>
        <source>Archos MPEG4</source>
        <translation>Archos MPEG4</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for portable players</source>
        <translation>MPEG4-Profil, optimiert für tragbare Player</translation>
    </message>
    <message>
        <source>Creative ZEN MPEG4 Video</source>
        <translation>MPEG4-Video für Creative ZEN</translation>
    </message>
    <message>
        <source>iRiver MPEG4 Video</source>
        <translation>MPEG4-Video für iRiver</translation>
    </message>
    <message>
        <source>PS3 H.264 Video</source>
        <translation>H.264-Video für PS3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for PS3</source>
        <translation>H.264/MPEG-4-AVC-Profil, optimiert für PS3</translation>
    </message>
    <message>
        <source>PSP MPEG-4 Video</source>
        <translation>MPEG-4-Video für PSP</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for PSP</source>
        <translation>MPEG4-Profil, optimiert für PSP</translation>
    </message>
    <message>
        <source>Xbox360 H.264 Video</source>
        <translation>H.264-Video für Xbox360</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Xbox360</source>
        <translation>H.264/MPEG-4-AVC-Profil, optimiert für Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 MPEG4 Video</source>
        <translation>MPEG4-Video für Xbox360</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Xbox360</source>
        <translation>MPEG4-Profil, optimiert für Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 WMV Video</source>
        <translation>WMV-Video für Xbox360</translation>
    </message>
    <message>
        <source>WMV profile optimized for Xbox360</source>
        <translation>WMV-Profil, optimiert für Xbox360</translation>
    </message>
    <message>
        <source>Zune MPEG4 Video</source>
        <translation>MPEG4-Video für Zune</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Zune</source>
        <translation>MPEG4-Profil, optimiert für Zune</translation>
    </message>
</context>
<context>
    <name>ProfileGroupLoader</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
</context>
<context>
    <name>ProfileMenu</name>
    <message>
        <source>Previous group</source>
        <translation>Vorherige Gruppe</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>Nächste Gruppe</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>Profile suchen</translation>
    </message>
    <message>
        <source>Previous profile</source>
        <translation>Vorheriges Profil</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Next profile</source>
        <translation>Nächstes Profil</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>Profil suchen...</translation>
    </message>
</context>
<context>
    <name>QtColorComboBox</name>
    <message>
        <source>More...</source>
        <translation>Weitere...</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Dunkelrot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Dunkelgrün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Dunkelblau</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation>Dunkelcyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>Dunkelmagenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>Dunkelgelb</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Hellgrau</translation>
    </message>
    <message>
        <source>User color %1</source>
        <translation>Eigene Farbe %1</translation>
    </message>
    <message>
        <source>User Color 99</source>
        <translation>Eigene Farbe 99</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
</context>
<context>
    <name>QxLanguage</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
</context>
<context>
    <name>QxSkin</name>
    <message>
        <source>&amp;Skin</source>
        <translation>&amp;Design</translation>
    </message>
</context>
<context>
    <name>SettingDialog</name>
    <message>
        <source>Advanced Settings</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>Einfach</translation>
    </message>
    <message>
        <source>Video Size:</source>
        <translation>Videogröße:</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>Videogröße</translation>
    </message>
    <message>
        <source>Video Quality:</source>
        <translation>Videoqualität:</translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation>Videoqualität</translation>
    </message>
    <message>
        <source>Audio Quality:</source>
        <translation>Audioqualität:</translation>
    </message>
    <message>
        <source>Audio Quality</source>
        <translation>Audioqualität</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Apply To All</source>
        <translation>Auf alle anwenden</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Picture Format</source>
        <translation>Bildformat</translation>
    </message>
    <message>
        <source>Picture format.</source>
        <translation>Dateiformat der aufgenommenen Bilder.</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>Select how many seconds to capture one picture.</source>
        <translation>Legt fest, nach wie vielen Sekunden jeweils ein Bild aufgenommen wird.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Video options</source>
        <translation>Videooptionen</translation>
    </message>
    <message>
        <source>Video Codec</source>
        <translation>Video-Codec</translation>
    </message>
    <message>
        <source>Set the video codec (methods of compression for digital videos, e.g., MPEG-4, H.264 or WMV) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>Legt den Video-Codec fest (das Kompressionsverfahren für digitales Video, z. B. MPEG-4, H.264 oder WMV), mit dem kodiert wird. Er hängt in der Regel vom gewählten Ausgabeformat ab.</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Set frame size. The format is &apos;width x height&apos; like 320x240, 640x480 or 1920x1080 pixels. You can choose an similar size for your playback device screen resolution.</source>
        <translation>Legt die Bildgröße fest. Das Format ist „Breite x Höhe“, z. B. 320x240, 640x480 oder 1920x1080 Pixel. Wählen Sie eine Größe, die der Bildschirmauflösung Ihres Wiedergabegeräts nahekommt.</translation>
    </message>
    <message>
        <source>Video Bitrate</source>
        <translation>Video-Bitrate</translation>
    </message>
    <message>
        <source>Set the video bit rate in kilobit per second. This is the key factor that is related to the output file size and video quality -- the larger the bit rate, the better the video quality and the bigger the output file you will get, and vice versa.</source>
        <translation>Legt die Video-Bitrate in Kilobit pro Sekunde fest. Sie bestimmt maßgeblich die Größe der Ausgabedatei und die Videoqualität: Je höher die Bitrate, desto besser die Videoqualität und desto größer die Ausgabedatei – und umgekehrt.</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Set how many frames should be displayed per second (FPS). Higher frame rate increases the smoothness when played back, and usually 25--30 frame per second can provide you with a very good viewing experience.</source>
        <translation>Legt fest, wie viele Bilder pro Sekunde angezeigt werden (FPS). Eine höhere Bildrate sorgt für eine flüssigere Wiedergabe; meist bieten 25–30 Bilder pro Sekunde bereits ein sehr gutes Seherlebnis.</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>Set width to height ratio according to the screen aspect of your playback device . (4:3, 16:9 or 1.3333, 1.7777).</source>
        <translation>Legt das Verhältnis von Breite zu Höhe passend zum Bildschirmformat Ihres Wiedergabegeräts fest (4:3, 16:9 bzw. 1.3333, 1.7777).</translation>
    </message>
    <message>
        <source>Same Quality</source>
        <translation>Gleiche Qualität</translation>
    </message>
    <message>
        <source>This function enables you to get good output video quality as the source. (Sometimes this function may bring you a large output file, or make the converting time pretty long.)</source>
        <translation>Mit dieser Funktion erhalten Sie ein Ausgabevideo in der Qualität der Quelle. (Dadurch kann die Ausgabedatei mitunter sehr groß werden oder die Konvertierung deutlich länger dauern.)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Select zoom mode, that is how to deal with the blank edge when the aspect of the source and the destination is different.</source>
        <translation>Wählt den Zoommodus, also den Umgang mit leeren Rändern, wenn sich die Seitenverhältnisse von Quelle und Ziel unterscheiden.</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Audio options</source>
        <translation>Audiooptionen</translation>
    </message>
    <message>
        <source>Audio Codec</source>
        <translation>Audio-Codec</translation>
    </message>
    <message>
        <source>Set the audio codec (methods of compression for digital audio, e.g., MP3, PCM or AC3) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>Legt den Audio-Codec fest (das Kompressionsverfahren für digitales Audio, z. B. MP3, PCM oder AC3), mit dem kodiert wird. Er hängt in der Regel vom gewählten Ausgabeformat ab.</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>Audio-Bitrate</translation>
    </message>
    <message>
        <source>Set audio bitrate (in kbit/s)</source>
        <translation>Legt die Audio-Bitrate fest (in kbit/s)</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Set the audio sampling frequency (the number of samples per second) (default = 44100 Hz).</source>
        <translation>Legt die Abtastrate des Audios fest, also die Anzahl der Abtastwerte pro Sekunde (Standard = 44100 Hz).</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Set number of audio channels, 1(Mono), 2(Stereo) and 5.1(Dolby Digital) are commonly used for general digital audio.</source>
        <translation>Legt die Anzahl der Audiokanäle fest; üblich sind bei digitalem Audio 1 (Mono), 2 (Stereo) und 5.1 (Dolby Digital).</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Set the output volume.</source>
        <translation>Legt die Lautstärke der Ausgabe fest.</translation>
    </message>
    <message>
        <source>Disable Audio</source>
        <translation>Ohne Ton</translation>
    </message>
    <message>
        <source>Disable audio</source>
        <translation>Erzeugt die Ausgabe ohne Tonspur</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Dateiinfo</translation>
    </message>
    <message>
        <source>Summary of the file</source>
        <translation>Beschreibende Angaben zur Datei</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Set the title</source>
        <translation>Legt den Titel fest</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Set the author</source>
        <translation>Legt den Autor fest</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Set the copyright</source>
        <translation>Legt den Copyright-Vermerk fest</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentare</translation>
    </message>
    <message>
        <source>Set the comment</source>
        <translation>Legt den Kommentar fest</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Komponist</translation>
    </message>
    <message>
        <source>Orig. Artist</source>
        <translation>Orig. Interpret</translation>
    </message>
    <message>
        <source>Encoded by</source>
        <translation>Kodiert von</translation>
    </message>
    <message>
        <source>Url</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Expert options</source>
        <translation>Erweiterte Optionen</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Title_%1</source>
        <translation>Titel_%1</translation>
    </message>
    <message>
        <source>Merge %1</source>
        <translation>Zusammenführung %1</translation>
    </message>
</context>
<context>
    <name>Utils</name>
    <message>
        <source>%1x%2</source>
        <translation>%1×%2</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>kB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>TB</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>PB</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>EB</translation>
    </message>
    <message>
        <source>ZB</source>
        <translation>ZB</translation>
    </message>
    <message>
        <source>YB</source>
        <translation>YB</translation>
    </message>
</context>
<context>
    <name>mainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open DVD...</source>
        <translation>DVD öffnen...</translation>
    </message>
    <message>
        <source>Open DVD Folder...</source>
        <translation>DVD-Ordner öffnen...</translation>
    </message>
    <message>
        <source>Open IFO Files...</source>
        <translation>IFO-Dateien öffnen...</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>Projekt laden...</translation>
    </message>
    <message>
        <source>Save Project...</source>
        <translation>Projekt speichern...</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>Projekt speichern unter...</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>Profil suchen...</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>Eigenschaften...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Ganz nach oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Ganz nach unten</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Remove Selected Item(s)</source>
        <translation>Ausgewählte Elemente entfernen</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Auswahl umkehren</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>Alle abhaken</translation>
    </message>
    <message>
        <source>Uncheck All</source>
        <translation>Alle Häkchen entfernen</translation>
    </message>
    <message>
        <source>Invert Check</source>
        <translation>Häkchen umkehren</translation>
    </message>
    <message>
        <source>Merge Selected into One</source>
        <translation>Auswahl zu einer Datei zusammenführen</translation>
    </message>
    <message>
        <source>Split by Chapter</source>
        <translation>Nach Kapiteln aufteilen</translation>
    </message>
    <message>
        <source>Add Output Profile...</source>
        <translation>Ausgabeprofil hinzufügen...</translation>
    </message>
    <message>
        <source>Apply Profile to All</source>
        <translation>Profil auf alle anwenden</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Wiedergabe/Pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Schnappschuss</translation>
    </message>
    <message>
        <source>Open Snapshot Folder</source>
        <translation>Schnappschuss-Ordner öffnen</translation>
    </message>
    <message>
        <source>Change Snapshot Folder</source>
        <translation>Schnappschuss-Ordner ändern</translation>
    </message>
    <message>
        <source>Snapshot Format</source>
        <translation>Schnappschuss-Format</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>BMP</source>
        <translation>BMP</translation>
    </message>
    <message>
        <source>JPG</source>
        <translation>JPG</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation>&amp;Clip</translation>
    </message>
    <message>
        <source>Trim...</source>
        <translation>Trimmen...</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>Zuschneiden...</translation>
    </message>
    <message>
        <source>Smart Crop</source>
        <translation>Intelligentes Zuschneiden</translation>
    </message>
    <message>
        <source>Watermark...</source>
        <translation>Wasserzeichen...</translation>
    </message>
    <message>
        <source>Effect...</source>
        <translation>Effekt...</translation>
    </message>
    <message>
        <source>Clear All Effects</source>
        <translation>Alle Effekte entfernen</translation>
    </message>
    <message>
        <source>Audio Track...</source>
        <translation>Audiospur...</translation>
    </message>
    <message>
        <source>Subtitle...</source>
        <translation>Untertitel...</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>&amp;Aktion</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>Markierte Elemente konvertieren</translation>
    </message>
    <message>
        <source>Pause Checked Item(s)</source>
        <translation>Markierte Elemente anhalten</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>Markierte Elemente stoppen</translation>
    </message>
    <message>
        <source>Open Source File Location</source>
        <translation>Speicherort der Quelldatei öffnen</translation>
    </message>
    <message>
        <source>Open Output File Location</source>
        <translation>Speicherort der Ausgabedatei öffnen</translation>
    </message>
    <message>
        <source>Post Task Actions</source>
        <translation>Aktionen nach Abschluss</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Nichts tun</translation>
    </message>
    <message>
        <source>Exit Program</source>
        <translation>Programm beenden</translation>
    </message>
    <message>
        <source>Shut Down</source>
        <translation>Herunterfahren</translation>
    </message>
    <message>
        <source>Log Off</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Ruhezustand</translation>
    </message>
    <message>
        <source>Stand By</source>
        <translation>Standbymodus</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;Open DVD</source>
        <translation>DVD ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Trim</source>
        <translation>&amp;Trimmen</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Zuschneiden</translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation>&amp;Effekt</translation>
    </message>
    <message>
        <source>&amp;Merge</source>
        <translation>Zusammen&amp;führen</translation>
    </message>
    <message>
        <source>&amp;Preference</source>
        <translation>Ei&amp;nstellungen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <translation>&amp;Profil:</translation>
    </message>
    <message>
        <source>Setting...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>&amp;Destination:</source>
        <translation>Zie&amp;l:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>Gesamtfortschritt</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Open Files...</source>
        <translation>Dateien öffnen...</translation>
    </message>
    <message>
        <source>Open Folder...</source>
        <translation>Ordner öffnen...</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>Convert Selected Item(s)</source>
        <translation>Ausgewählte Elemente konvertieren</translation>
    </message>
    <message>
        <source>Pause Selected Item(s)</source>
        <translation>Ausgewählte Elemente anhalten</translation>
    </message>
    <message>
        <source>Stop Selected Item(s)</source>
        <translation>Ausgewählte Elemente stoppen</translation>
    </message>
    <message>
        <source>Convert All Item(s)</source>
        <translation>Alle Elemente konvertieren</translation>
    </message>
    <message>
        <source>Pause All Item(s)</source>
        <translation>Alle Elemente anhalten</translation>
    </message>
    <message>
        <source>Stop All Item(s)</source>
        <translation>Alle Elemente stoppen</translation>
    </message>
</context>
<context>
    <name>saveAsDlg</name>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Save As:</source>
        <translation>Speichern unter:</translation>
    </message>
</context>
<context>
    <name>splash</name>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Version: %1</translation>
    </message>
</context>
</TS>
