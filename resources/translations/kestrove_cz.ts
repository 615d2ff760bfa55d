<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs">
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
        <translation>Zobrazit původní snímek</translation>
    </message>
    <message>
        <source>Display Output Frame</source>
        <translation>Zobrazit výstupní snímek</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Uložit jako...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Přejmenovat...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Odstranit</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Začínáme</translation>
    </message>
    <message>
        <source>1. Click &quot;%1 Open DVD %2&quot; to Open DVD.</source>
        <translation>1. Klepněte na „%1 Otevřít DVD %2“ a otevřete DVD.</translation>
    </message>
    <message>
        <source>2. Click &quot;%1 Trim&quot; or &quot;%2 Crop&quot; to edit video file.</source>
        <translation>2. Klepnutím na „%1 Střih“ nebo „%2 Oříznutí“ upravte video soubor.</translation>
    </message>
    <message>
        <source>3. Select output format from the &quot;Profile&quot; list.</source>
        <translation>3. Vyberte výstupní formát ze seznamu „Profil“.</translation>
    </message>
    <message>
        <source>4. Click &quot;%1&quot; to convert.</source>
        <translation>4. Klepnutím na „%1“ spusťte převod.</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?</source>
        <translation>Opravdu chcete zastavit převod?</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Obnovit z maxima</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximalizovat</translation>
    </message>
    <message>
        <source>Please Select Output Folder</source>
        <translation>Vyberte výstupní složku</translation>
    </message>
    <message>
        <source>Please select a DVD drive or a DVD folder.</source>
        <translation>Vyberte jednotku DVD nebo složku DVD.</translation>
    </message>
    <message>
        <source>Open IFO Files</source>
        <translation>Otevřít soubory IFO</translation>
    </message>
    <message>
        <source>IFO Files (*.ifo *.IFO)</source>
        <translation>Soubory IFO (*.ifo *.IFO)</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání...</translation>
    </message>
    <message>
        <source>The IFO File is invalid.
%1</source>
        <translation>Soubor IFO je neplatný.
%1</translation>
    </message>
    <message>
        <source>Following files can not be loaded(They are not valid media files or their formats are not supported):</source>
        <translation>Následující soubory nelze načíst (nejsou to platné mediální soubory nebo jejich formát není podporován):</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Všechny soubory</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>Všechny podporované formáty</translation>
    </message>
    <message>
        <source>Supported Video</source>
        <translation>Podporované video</translation>
    </message>
    <message>
        <source>Supported Audio</source>
        <translation>Podporovaný zvuk</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Načíst</translation>
    </message>
    <message>
        <source>Select a Folder</source>
        <translation>Vyberte složku</translation>
    </message>
    <message>
        <source>Audio Tracks</source>
        <translation>Zvukové stopy</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Titulky</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Source file %1 not found!</source>
        <translation>Zdrojový soubor %1 nebyl nalezen!</translation>
    </message>
    <message>
        <source>Can not save the image.</source>
        <translation>Obrázek nelze uložit.</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>Převést zaškrtnuté položky</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>Zastavit zaškrtnuté položky</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Spustit</translation>
    </message>
    <message>
        <source>Elapsed Time: %1 Remaining Time: %2 Progress: </source>
        <translation>Uplynulý čas: %1 Zbývající čas: %2 Průběh: </translation>
    </message>
    <message>
        <source>Conversion finished</source>
        <translation>Převod dokončen</translation>
    </message>
    <message>
        <source>Succeeded: %1, failed: %2</source>
        <translation>Úspěšně: %1, neúspěšně: %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zobrazit</translation>
    </message>
    <message>
        <source>Your profiles could not be saved.
%1</source>
        <translation>Vaše profily nelze uložit.
%1</translation>
    </message>
    <message>
        <source>Are you sure to apply current profile settings to all items?</source>
        <translation>Opravdu chcete použít nastavení aktuálního profilu na všechny položky?</translation>
    </message>
</context>
<context>
    <name>CPlayPauseButton</name>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
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
        <translation>Doporučeno</translation>
    </message>
</context>
<context>
    <name>CSearchLineEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>Vymazat hledání</translation>
    </message>
</context>
<context>
    <name>CustomItemWidget</name>
    <message>
        <source>Convert This Item</source>
        <translation>Převést tuto položku</translation>
    </message>
    <message>
        <source>Audio Track</source>
        <translation>Zvuková stopa</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Titulky</translation>
    </message>
    <message>
        <source>Output Name</source>
        <translation>Název výstupu</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Posunout nahoru</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Posunout dolů</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Stop Converting</source>
        <translation>Zastavit převod</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Rozbalit</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Zbývá</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Délka</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Datový tok</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kb/s</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Umístění</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>Edit Audio</source>
        <translation>Upravit zvuk</translation>
    </message>
    <message>
        <source>Edit Subtitle</source>
        <translation>Upravit titulky</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Čeká...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>Pending...</source>
        <translation>Připravuje se...</translation>
    </message>
    <message>
        <source>Succeed</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Selhalo</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Sbalit</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?
Some of the unfinished files cannot be played properly.</source>
        <translation>Opravdu chcete zastavit převod?
Některé z nedokončených souborů nepůjde správně přehrát.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
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
        <translation>Vlastní</translation>
    </message>
    <message>
        <source>General Video</source>
        <translation>Obecné video</translation>
    </message>
    <message>
        <source>General Audio</source>
        <translation>Obecné audio</translation>
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
        <translation>HD video</translation>
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
        <translation>Mobilní telefon</translation>
    </message>
    <message>
        <source>Picture and Animation</source>
        <translation>Obrázky a animace</translation>
    </message>
    <message>
        <source>Portable Multimedia Device</source>
        <translation>Přenosné multimediální zařízení</translation>
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
        <translation>HD video pro Xbox</translation>
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
        <translation>Advanced Streaming Format, kontejner Windows Media.</translation>
    </message>
    <message>
        <source>AVI - Audio-Video Interleaved</source>
        <translation>AVI - Audio-Video Interleaved</translation>
    </message>
    <message>
        <source>Audio-Video Interleaved, the classic Windows video format.</source>
        <translation>Audio-Video Interleaved, klasický formát videa ve Windows.</translation>
    </message>
    <message>
        <source>DivX Video</source>
        <translation>Video DivX</translation>
    </message>
    <message>
        <source>DivX video in an AVI container.</source>
        <translation>Video DivX v kontejneru AVI.</translation>
    </message>
    <message>
        <source>DV - Digital Video format</source>
        <translation>DV - Formát digitálního videa</translation>
    </message>
    <message>
        <source>Digital Video format of camcorders.</source>
        <translation>Formát digitálního videa z videokamer.</translation>
    </message>
    <message>
        <source>DVD Video</source>
        <translation>Video DVD</translation>
    </message>
    <message>
        <source>MPEG-2 video for DVD players.</source>
        <translation>Video MPEG-2 pro přehrávače DVD.</translation>
    </message>
    <message>
        <source>MOV - QuickTime</source>
        <translation>MOV - QuickTime</translation>
    </message>
    <message>
        <source>QuickTime movie format.</source>
        <translation>Filmový formát QuickTime.</translation>
    </message>
    <message>
        <source>MPEG4 Video</source>
        <translation>Video MPEG4</translation>
    </message>
    <message>
        <source>MPEG-4 video format.</source>
        <translation>Formát videa MPEG-4.</translation>
    </message>
    <message>
        <source>MPEG1 Video</source>
        <translation>Video MPEG1</translation>
    </message>
    <message>
        <source>MPEG-1 video format.</source>
        <translation>Formát videa MPEG-1.</translation>
    </message>
    <message>
        <source>MPEG2 Video</source>
        <translation>Video MPEG2</translation>
    </message>
    <message>
        <source>MPEG-2 video format.</source>
        <translation>Formát videa MPEG-2.</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC Video</source>
        <translation>Video H.264/MPEG-4 AVC</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC video format.</source>
        <translation>Formát videa H.264/MPEG-4 AVC.</translation>
    </message>
    <message>
        <source>RM - Real Video</source>
        <translation>RM - Real Video</translation>
    </message>
    <message>
        <source>RealVideo streaming format.</source>
        <translation>Formát pro streamování RealVideo.</translation>
    </message>
    <message>
        <source>VCD Video</source>
        <translation>Video VCD</translation>
    </message>
    <message>
        <source>MPEG-1 video for Video CD players.</source>
        <translation>Video MPEG-1 pro přehrávače Video CD.</translation>
    </message>
    <message>
        <source>WMV - Windows Media Video</source>
        <translation>WMV - Windows Media Video</translation>
    </message>
    <message>
        <source>Windows Media Video format.</source>
        <translation>Formát Windows Media Video.</translation>
    </message>
    <message>
        <source>Xvid Video</source>
        <translation>Video Xvid</translation>
    </message>
    <message>
        <source>Xvid video in an AVI container.</source>
        <translation>Video Xvid v kontejneru AVI.</translation>
    </message>
    <message>
        <source>Matroska Video</source>
        <translation>Video Matroska</translation>
    </message>
    <message>
        <source>Matroska video format.</source>
        <translation>Formát videa Matroska.</translation>
    </message>
    <message>
        <source>WebM Video</source>
        <translation>Video WebM</translation>
    </message>
    <message>
        <source>WebM video format for the web.</source>
        <translation>Formát videa WebM pro web.</translation>
    </message>
    <message>
        <source>AC3 - Dolby Digital AC-3</source>
        <translation>AC3 - Dolby Digital AC-3</translation>
    </message>
    <message>
        <source>Dolby Digital AC-3 audio format.</source>
        <translation>Zvukový formát Dolby Digital AC-3.</translation>
    </message>
    <message>
        <source>AIFF - Audio Interchange File Format</source>
        <translation>AIFF - Audio Interchange File Format</translation>
    </message>
    <message>
        <source>Audio Interchange File Format, uncompressed audio.</source>
        <translation>Audio Interchange File Format, nekomprimovaný zvuk.</translation>
    </message>
    <message>
        <source>ALAC - Apple Lossless Audio Codec</source>
        <translation>ALAC - Apple Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Apple Lossless audio format.</source>
        <translation>Zvukový formát Apple Lossless.</translation>
    </message>
    <message>
        <source>FLAC - Free Lossless Audio Codec</source>
        <translation>FLAC - Free Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec format.</source>
        <translation>Bezeztrátový zvukový formát Free Lossless Audio Codec.</translation>
    </message>
    <message>
        <source>SUN AU Format</source>
        <translation>Formát SUN AU</translation>
    </message>
    <message>
        <source>Sun AU audio format.</source>
        <translation>Zvukový formát Sun AU.</translation>
    </message>
    <message>
        <source>M4A - MPEG-4 Audio</source>
        <translation>M4A - Zvuk MPEG-4</translation>
    </message>
    <message>
        <source>MPEG-4 Audio format.</source>
        <translation>Zvukový formát MPEG-4.</translation>
    </message>
    <message>
        <source>MP2 - MPEG Layer-2 Audio</source>
        <translation>MP2 - Zvuk MPEG Layer-2</translation>
    </message>
    <message>
        <source>MPEG Layer-2 audio format.</source>
        <translation>Zvukový formát MPEG Layer-2.</translation>
    </message>
    <message>
        <source>MP3 - MPEG Layer-3 Audio</source>
        <translation>MP3 - Zvuk MPEG Layer-3</translation>
    </message>
    <message>
        <source>MPEG Layer-3 audio format.</source>
        <translation>Zvukový formát MPEG Layer-3.</translation>
    </message>
    <message>
        <source>OGG - Ogg Vorbis Audio</source>
        <translation>OGG - Zvuk Ogg Vorbis</translation>
    </message>
    <message>
        <source>Ogg Vorbis audio format.</source>
        <translation>Zvukový formát Ogg Vorbis.</translation>
    </message>
    <message>
        <source>RA - RealAudio</source>
        <translation>RA - RealAudio</translation>
    </message>
    <message>
        <source>RealAudio streaming format.</source>
        <translation>Formát pro streamování RealAudio.</translation>
    </message>
    <message>
        <source>WAV - Waveform Audio</source>
        <translation>WAV - Waveform Audio</translation>
    </message>
    <message>
        <source>Waveform audio format, uncompressed.</source>
        <translation>Zvukový formát Waveform, nekomprimovaný.</translation>
    </message>
    <message>
        <source>WMA - Windows Media Audio</source>
        <translation>WMA - Windows Media Audio</translation>
    </message>
    <message>
        <source>Windows Media Audio format.</source>
        <translation>Formát Windows Media Audio.</translation>
    </message>
    <message>
        <source>Android MPEG4 Video</source>
        <translation>Video MPEG4 pro Android</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Android</source>
        <translation>Profil MPEG4 optimalizovaný pro Android</translation>
    </message>
    <message>
        <source>Samsung Galaxy S3 H.264 Video</source>
        <translation>Video H.264 pro Samsung Galaxy S3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Galaxy S3</source>
        <translation>Profil H.264/MPEG-4 AVC optimalizovaný pro Galaxy S3</translation>
    </message>
    <message>
        <source>Samsung Galaxy Tab MPEG4 Video</source>
        <translation>Video MPEG4 pro Samsung Galaxy Tab</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Galaxy Tab</source>
        <translation>Profil MPEG4 optimalizovaný pro Galaxy Tab</translation>
    </message>
    <message>
        <source>Apple TV H.264 Video</source>
        <translation>Video H.264 pro Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV</source>
        <translation>Profil H.264/MPEG-4 AVC optimalizovaný pro Apple TV</translation>
    </message>
    <message>
        <source>Apple TV H.264 HD Video</source>
        <translation>HD video H.264 pro Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV HD</source>
        <translation>Profil H.264/MPEG-4 AVC optimalizovaný pro Apple TV HD</translation>
    </message>
    <message>
        <source>Apple TV 3 H.264 1080P Video</source>
        <translation>Video H.264 1080P pro Apple TV 3</translation>
    </message>
    <message>
        <source>Apple TV MPEG4 Video</source>
        <translation>Video MPEG4 pro Apple TV</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Apple TV</source>
        <translation>Profil MPEG4 optimalizovaný pro Apple TV</translation>
    </message>
    <message>
        <source>HD ASF Video</source>
        <translation>HD video ASF</translation>
    </message>
    <message>
        <source>ASF profile optimized for HD players</source>
        <translation>Profil ASF optimalizovaný pro HD přehrávače</translation>
    </message>
    <message>
        <source>HD AVI Video</source>
        <translation>HD video AVI</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for HD players</source>
        <translation>Profil MPEG4 AVI optimalizovaný pro HD přehrávače</translation>
    </message>
    <message>
        <source>HD H.264/MPEG-4 AVC Video</source>
        <translation>HD video H.264/MPEG-4 AVC</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for HD players</source>
        <translation>Profil H.264/MPEG-4 AVC optimalizovaný pro HD přehrávače</translation>
    </message>
    <message>
        <source>HD Quick Time Video</source>
        <translation>HD video QuickTime</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for HD players</source>
        <translation>Profil MPEG4 optimalizovaný pro HD přehrávače</translation>
    </message>
    <message>
        <source>MPEG2-PS HD Video</source>
        <translation>HD video MPEG2-PS</translation>
    </message>
    <message>
        <source>MPEG2 profile optimized for HD players</source>
        <translation>Profil MPEG2 optimalizovaný pro HD přehrávače</translation>
    </message>
    <message>
        <source>MPEG2-TS HD Video</source>
        <translation>HD video MPEG2-TS</translation>
    </message>
    <message>
        <source>MPEG4 HD Video</source>
        <translation>HD video MPEG4</translation>
    </message>
    <message>
        <source>RM HD Video</source>
        <translation>HD video RM</translation>
    </message>
    <message>
        <source>RealVideo profile optimized for HD players</source>
        <translation>Profil RealVideo optimalizovaný pro HD přehrávače</translation>
    </message>
    <message>
        <source>HD WMV Video</source>
        <translation>HD video WMV</translation>
    </message>
    <message>
        <source>WMV profile optimized for HD players</source>
        <translation>Profil WMV optimalizovaný pro HD přehrávače</translation>
    </message>
    <message>
        <source>XVID HD Video</source>
        <translation>HD video XVID</translation>
    </message>
    <message>
        <source>Xvid profile optimized for HD players</source>
        <translation>Profil Xvid optimalizovaný pro HD přehrávače</translation>
    </message>
    <message>
        <source>iPad H.264 Video</source>
        <translation>Video H.264 pro iPad</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPad</source>
        <translation>Profil H.264/MPEG-4 AVC optimalizovaný pro iPad</translation>
    </message>
    <message>
        <source>iPad H.264 HD Video</source>
        <translation>HD video H.264 pro iPad</translation>
    </message>
    <message>
        <source>iPad MPEG4 Video</source>
        <translation>Video MPEG4 pro iPad</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPad</source>
        <translation>Profil MPEG4 optimalizovaný pro iPad</translation>
    </message>
    <message>
        <source>iPad 2 H.264 Video</source>
        <translation>Video H.264 pro iPad 2</translation>
    </message>
    <message>
        <source>iPad 2 H.264 HD Video</source>
        <translation>HD video H.264 pro iPad 2</translation>
    </message>
    <message>
        <source>iPad 2 MPEG4 Video</source>
        <translation>Video MPEG4 pro iPad 2</translation>
    </message>
    <message>
        <source>iPad 3 1080P Video</source>
        <translation>Video 1080P pro iPad 3</translation>
    </message>
    <message>
        <source>iPad mini H.264 Video</source>
        <translation>Video H.264 pro iPad mini</translation>
    </message>
    <message>
        <source>iPhone H.264 Video</source>
        <translation>Video H.264 pro iPhone</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPhone</source>
        <translation>Profil H.264/MPEG-4 AVC optimalizovaný pro iPhone</translation>
    </message>
    <message>
        <source>iPhone MPEG4 Video</source>
        <translation>Video MPEG4 pro iPhone</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPhone</source>
        <translation>Profil MPEG4 optimalizovaný pro iPhone</translation>
    </message>
    <message>
        <source>iPhone 4 H.264 Video</source>
        <translation>Video H.264 pro iPhone 4</translation>
    </message>
    <message>
        <source>iPhone 4 MPEG4 Video</source>
        <translation>Video MPEG4 pro iPhone 4</translation>
    </message>
    <message>
        <source>iPhone 5 H.264 Video</source>
        <translation>Video H.264 pro iPhone 5</translation>
    </message>
    <message>
        <source>iPod H.264 Video</source>
        <translation>Video H.264 pro iPod</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod</source>
        <translation>Profil H.264/MPEG-4 AVC optimalizovaný pro iPod</translation>
    </message>
    <message>
        <source>iPod MPEG4 Video</source>
        <translation>Video MPEG4 pro iPod</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod</source>
        <translation>Profil MPEG4 optimalizovaný pro iPod</translation>
    </message>
    <message>
        <source>iPod touch H.264 Video</source>
        <translation>Video H.264 pro iPod touch</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod touch</source>
        <translation>Profil H.264/MPEG-4 AVC optimalizovaný pro iPod touch</translation>
    </message>
    <message>
        <source>iPod touch MPEG4 Video</source>
        <translation>Video MPEG4 pro iPod touch</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod touch</source>
        <translation>Profil MPEG4 optimalizovaný pro iPod touch</translation>
    </message>
    <message>
        <source>iPod touch 4 H.264 Video</source>
        <translation>Video H.264 pro iPod touch 4</translation>
    </message>
    <message>
        <source>iPod touch 4 MPEG4 Video</source>
        <translation>Video MPEG4 pro iPod touch 4</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Stereo</source>
        <translation>Video 3GP pro mobilní telefon - Stereo</translation>
    </message>
    <message>
        <source>3GP profile optimized for mobile phones</source>
        <translation>Profil 3GP optimalizovaný pro mobilní telefony</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Mono</source>
        <translation>Video 3GP pro mobilní telefon - Mono</translation>
    </message>
    <message>
        <source>BlackBerry 3GP Video</source>
        <translation>Video 3GP pro BlackBerry</translation>
    </message>
    <message>
        <source>BlackBerry AVI Video</source>
        <translation>Video AVI pro BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for mobile phones</source>
        <translation>Profil MPEG4 AVI optimalizovaný pro mobilní telefony</translation>
    </message>
    <message>
        <source>BlackBerry MPEG4 Video</source>
        <translation>Video MPEG4 pro BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for mobile phones</source>
        <translation>Profil MPEG4 optimalizovaný pro mobilní telefony</translation>
    </message>
    <message>
        <source>WMV Video for Mobile Phone</source>
        <translation>Video WMV pro mobilní telefon</translation>
    </message>
    <message>
        <source>WMV profile optimized for mobile phones</source>
        <translation>Profil WMV optimalizovaný pro mobilní telefony</translation>
    </message>
    <message>
        <source>FLV - Flash Video Format</source>
        <translation>FLV - Formát Flash Video</translation>
    </message>
    <message>
        <source>Flash video format for web pages.</source>
        <translation>Formát videa Flash pro webové stránky.</translation>
    </message>
    <message>
        <source>Picture - BMP format</source>
        <translation>Obrázek - Formát BMP</translation>
    </message>
    <message>
        <source>Pictures captured from the video as BMP files.</source>
        <translation>Snímky zachycené z videa jako soubory BMP.</translation>
    </message>
    <message>
        <source>Picture - GIF Animation format</source>
        <translation>Obrázek - Animovaný GIF</translation>
    </message>
    <message>
        <source>An animated GIF picture made from the video.</source>
        <translation>Animovaný obrázek GIF vytvořený z videa.</translation>
    </message>
    <message>
        <source>Picture - JPEG format</source>
        <translation>Obrázek - Formát JPEG</translation>
    </message>
    <message>
        <source>Pictures captured from the video as JPEG files.</source>
        <translation>Snímky zachycené z videa jako soubory JPEG.</translation>
    </message>
    <message>
        <source>Picture - PNG format</source>
        <translation>Obrázek - Formát PNG</translation>
    </message>
    <message>
        <source>Pictures captured from the video as PNG files.</source>
        <translation>Snímky zachycené z videa jako soubory PNG.</translation>
    </message>
    <message>
        <source>SWF - SWF Format</source>
        <translation>SWF - Formát SWF</translation>
    </message>
    <message>
        <source>Shockwave Flash animation format.</source>
        <translation>Formát animací Shockwave Flash.</translation>
    </message>
    <message>
        <source>Archos MPEG4</source>
        <translation>Archos MPEG4</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for portable players</source>
        <translation>Profil MPEG4 optimalizovaný pro přenosné přehrávače</translation>
    </message>
    <message>
        <source>Creative ZEN MPEG4 Video</source>
        <translation>Video MPEG4 pro Creative ZEN</translation>
    </message>
    <message>
        <source>iRiver MPEG4 Video</source>
        <translation>Video MPEG4 pro iRiver</translation>
    </message>
    <message>
        <source>PS3 H.264 Video</source>
        <translation>Video H.264 pro PS3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for PS3</source>
        <translation>Profil H.264/MPEG-4 AVC optimalizovaný pro PS3</translation>
    </message>
    <message>
        <source>PSP MPEG-4 Video</source>
        <translation>Video MPEG-4 pro PSP</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for PSP</source>
        <translation>Profil MPEG4 optimalizovaný pro PSP</translation>
    </message>
    <message>
        <source>Xbox360 H.264 Video</source>
        <translation>Video H.264 pro Xbox360</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Xbox360</source>
        <translation>Profil H.264/MPEG-4 AVC optimalizovaný pro Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 MPEG4 Video</source>
        <translation>Video MPEG4 pro Xbox360</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Xbox360</source>
        <translation>Profil MPEG4 optimalizovaný pro Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 WMV Video</source>
        <translation>Video WMV pro Xbox360</translation>
    </message>
    <message>
        <source>WMV profile optimized for Xbox360</source>
        <translation>Profil WMV optimalizovaný pro Xbox360</translation>
    </message>
    <message>
        <source>Zune MPEG4 Video</source>
        <translation>Video MPEG4 pro Zune</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Zune</source>
        <translation>Profil MPEG4 optimalizovaný pro Zune</translation>
    </message>
</context>
<context>
    <name>ProfileGroupLoader</name>
    <message>
        <source>Untitled</source>
        <translation>Bez názvu</translation>
    </message>
</context>
<context>
    <name>ProfileMenu</name>
    <message>
        <source>Previous group</source>
        <translation>Předchozí skupina</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Skupiny</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>Další skupina</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>Hledat profily</translation>
    </message>
    <message>
        <source>Previous profile</source>
        <translation>Předchozí profil</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profily</translation>
    </message>
    <message>
        <source>Next profile</source>
        <translation>Další profil</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>Hledat profil...</translation>
    </message>
</context>
<context>
    <name>QtColorComboBox</name>
    <message>
        <source>More...</source>
        <translation>Další...</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Černá</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Bílá</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Červená</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Tmavě červená</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zelená</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Tmavě zelená</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Modrá</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Tmavě modrá</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Azurová</translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation>Tmavě azurová</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Purpurová</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>Tmavě purpurová</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Žlutá</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>Tmavě žlutá</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Šedá</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Tmavě šedá</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Světle šedá</translation>
    </message>
    <message>
        <source>User color %1</source>
        <translation>Vlastní barva %1</translation>
    </message>
    <message>
        <source>User Color 99</source>
        <translation>Vlastní barva 99</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>Vlastnost</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Vlastnosti</translation>
    </message>
</context>
<context>
    <name>QxLanguage</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Jazyk</translation>
    </message>
</context>
<context>
    <name>QxSkin</name>
    <message>
        <source>&amp;Skin</source>
        <translation>&amp;Vzhled</translation>
    </message>
</context>
<context>
    <name>SettingDialog</name>
    <message>
        <source>Advanced Settings</source>
        <translation>Pokročilá nastavení</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>Jednoduché</translation>
    </message>
    <message>
        <source>Video Size:</source>
        <translation>Velikost videa:</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>Velikost videa</translation>
    </message>
    <message>
        <source>Video Quality:</source>
        <translation>Kvalita videa:</translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation>Kvalita videa</translation>
    </message>
    <message>
        <source>Audio Quality:</source>
        <translation>Kvalita zvuku:</translation>
    </message>
    <message>
        <source>Audio Quality</source>
        <translation>Kvalita zvuku</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Pokročilé</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Popis</translation>
    </message>
    <message>
        <source>Apply To All</source>
        <translation>Použít na vše</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Picture Format</source>
        <translation>Formát obrázků</translation>
    </message>
    <message>
        <source>Picture format.</source>
        <translation>Formát souborů se zachycenými snímky.</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Interval</translation>
    </message>
    <message>
        <source>Select how many seconds to capture one picture.</source>
        <translation>Určuje, po kolika sekundách se zachytí jeden snímek.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Video options</source>
        <translation>Možnosti videa</translation>
    </message>
    <message>
        <source>Video Codec</source>
        <translation>Video kodek</translation>
    </message>
    <message>
        <source>Set the video codec (methods of compression for digital videos, e.g., MPEG-4, H.264 or WMV) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>Nastaví video kodek (způsob komprese digitálního videa, např. MPEG-4, H.264 nebo WMV), který použije kódovací jádro. Obvykle závisí na zvoleném výstupním formátu.</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>Velikost videa</translation>
    </message>
    <message>
        <source>Set frame size. The format is &apos;width x height&apos; like 320x240, 640x480 or 1920x1080 pixels. You can choose an similar size for your playback device screen resolution.</source>
        <translation>Nastaví velikost snímku. Zadává se jako „šířka x výška“, např. 320x240, 640x480 nebo 1920x1080 pixelů. Můžete zvolit velikost blízkou rozlišení obrazovky vašeho přehrávacího zařízení.</translation>
    </message>
    <message>
        <source>Video Bitrate</source>
        <translation>Datový tok videa</translation>
    </message>
    <message>
        <source>Set the video bit rate in kilobit per second. This is the key factor that is related to the output file size and video quality -- the larger the bit rate, the better the video quality and the bigger the output file you will get, and vice versa.</source>
        <translation>Nastaví datový tok videa v kilobitech za sekundu. Je to klíčový faktor, na kterém závisí velikost výstupního souboru a kvalita videa: čím vyšší datový tok, tím lepší kvalita videa a větší výstupní soubor, a naopak.</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Snímková frekvence</translation>
    </message>
    <message>
        <source>Set how many frames should be displayed per second (FPS). Higher frame rate increases the smoothness when played back, and usually 25--30 frame per second can provide you with a very good viewing experience.</source>
        <translation>Nastaví, kolik snímků se zobrazí za sekundu (FPS). Vyšší snímková frekvence zvyšuje plynulost přehrávání; obvykle 25–30 snímků za sekundu poskytuje velmi dobrý zážitek ze sledování.</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Poměr stran</translation>
    </message>
    <message>
        <source>Set width to height ratio according to the screen aspect of your playback device . (4:3, 16:9 or 1.3333, 1.7777).</source>
        <translation>Nastaví poměr šířky k výšce podle poměru stran obrazovky vašeho přehrávacího zařízení (4:3, 16:9 nebo 1.3333, 1.7777).</translation>
    </message>
    <message>
        <source>Same Quality</source>
        <translation>Stejná kvalita</translation>
    </message>
    <message>
        <source>This function enables you to get good output video quality as the source. (Sometimes this function may bring you a large output file, or make the converting time pretty long.)</source>
        <translation>Tato funkce umožňuje získat výstupní video ve stejně dobré kvalitě jako zdroj. (Někdy může vzniknout velký výstupní soubor nebo se převod značně prodlouží.)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Select zoom mode, that is how to deal with the blank edge when the aspect of the source and the destination is different.</source>
        <translation>Zvolte režim zoomu, tedy jak naložit s prázdnými okraji, když se poměr stran zdroje a cíle liší.</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Zvuk</translation>
    </message>
    <message>
        <source>Audio options</source>
        <translation>Možnosti zvuku</translation>
    </message>
    <message>
        <source>Audio Codec</source>
        <translation>Zvukový kodek</translation>
    </message>
    <message>
        <source>Set the audio codec (methods of compression for digital audio, e.g., MP3, PCM or AC3) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>Nastaví zvukový kodek (způsob komprese digitálního zvuku, např. MP3, PCM nebo AC3), který použije kódovací jádro. Obvykle závisí na zvoleném výstupním formátu.</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>Datový tok zvuku</translation>
    </message>
    <message>
        <source>Set audio bitrate (in kbit/s)</source>
        <translation>Nastaví datový tok zvuku (v kbit/s)</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Vzorkování</translation>
    </message>
    <message>
        <source>Set the audio sampling frequency (the number of samples per second) (default = 44100 Hz).</source>
        <translation>Nastaví vzorkovací frekvenci zvuku, tedy počet vzorků za sekundu (výchozí = 44100 Hz).</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanály</translation>
    </message>
    <message>
        <source>Set number of audio channels, 1(Mono), 2(Stereo) and 5.1(Dolby Digital) are commonly used for general digital audio.</source>
        <translation>Nastaví počet zvukových kanálů; u běžného digitálního zvuku se používá 1 (mono), 2 (stereo) a 5.1 (Dolby Digital).</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hlasitost</translation>
    </message>
    <message>
        <source>Set the output volume.</source>
        <translation>Nastaví výstupní hlasitost.</translation>
    </message>
    <message>
        <source>Disable Audio</source>
        <translation>Vypnout zvuk</translation>
    </message>
    <message>
        <source>Disable audio</source>
        <translation>Vytvoří výstup bez zvukové stopy</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>Summary of the file</source>
        <translation>Souhrnné informace o souboru</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Set the title</source>
        <translation>Nastaví název</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Set the author</source>
        <translation>Nastaví autora</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Set the copyright</source>
        <translation>Nastaví informace o autorských právech</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Komentáře</translation>
    </message>
    <message>
        <source>Set the comment</source>
        <translation>Nastaví komentář</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Žánr</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Skladatel</translation>
    </message>
    <message>
        <source>Orig. Artist</source>
        <translation>Původní umělec</translation>
    </message>
    <message>
        <source>Encoded by</source>
        <translation>Kódoval</translation>
    </message>
    <message>
        <source>Url</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Rok</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Pokročilé</translation>
    </message>
    <message>
        <source>Expert options</source>
        <translation>Pokročilé možnosti</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametry</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Title_%1</source>
        <translation>Titul_%1</translation>
    </message>
    <message>
        <source>Merge %1</source>
        <translation>Sloučení %1</translation>
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
        <translation>&amp;Soubor</translation>
    </message>
    <message>
        <source>Open DVD...</source>
        <translation>Otevřít DVD...</translation>
    </message>
    <message>
        <source>Open DVD Folder...</source>
        <translation>Otevřít složku DVD...</translation>
    </message>
    <message>
        <source>Open IFO Files...</source>
        <translation>Otevřít soubory IFO...</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>Načíst projekt...</translation>
    </message>
    <message>
        <source>Save Project...</source>
        <translation>Uložit projekt...</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>Uložit projekt jako...</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>Hledat profil...</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>Vlastnosti...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Konec</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Úp&amp;ravy</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Přejmenovat</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Přesunout</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Posunout nahoru</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Posunout dolů</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Na začátek</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Na konec</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Duplikovat</translation>
    </message>
    <message>
        <source>Remove Selected Item(s)</source>
        <translation>Odebrat vybrané položky</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Vymazat vše</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Vybrat vše</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Zrušit výběr</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Obrátit výběr</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>Zaškrtnout vše</translation>
    </message>
    <message>
        <source>Uncheck All</source>
        <translation>Zrušit zaškrtnutí všech</translation>
    </message>
    <message>
        <source>Invert Check</source>
        <translation>Obrátit zaškrtnutí</translation>
    </message>
    <message>
        <source>Merge Selected into One</source>
        <translation>Sloučit vybrané do jednoho</translation>
    </message>
    <message>
        <source>Split by Chapter</source>
        <translation>Rozdělit podle kapitol</translation>
    </message>
    <message>
        <source>Add Output Profile...</source>
        <translation>Přidat výstupní profil...</translation>
    </message>
    <message>
        <source>Apply Profile to All</source>
        <translation>Použít profil na vše</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Přehrát</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Přehrát/Pozastavit</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Předchozí</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Snímek</translation>
    </message>
    <message>
        <source>Open Snapshot Folder</source>
        <translation>Otevřít složku snímků</translation>
    </message>
    <message>
        <source>Change Snapshot Folder</source>
        <translation>Změnit složku snímků</translation>
    </message>
    <message>
        <source>Snapshot Format</source>
        <translation>Formát snímku</translation>
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
        <translation>Celá obrazovka</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation>&amp;Klip</translation>
    </message>
    <message>
        <source>Trim...</source>
        <translation>Střih...</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>Oříznutí...</translation>
    </message>
    <message>
        <source>Smart Crop</source>
        <translation>Chytré oříznutí</translation>
    </message>
    <message>
        <source>Watermark...</source>
        <translation>Vodoznak...</translation>
    </message>
    <message>
        <source>Effect...</source>
        <translation>Efekt...</translation>
    </message>
    <message>
        <source>Clear All Effects</source>
        <translation>Odstranit všechny efekty</translation>
    </message>
    <message>
        <source>Audio Track...</source>
        <translation>Zvuková stopa...</translation>
    </message>
    <message>
        <source>Subtitle...</source>
        <translation>Titulky...</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>&amp;Akce</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>Převést zaškrtnuté položky</translation>
    </message>
    <message>
        <source>Pause Checked Item(s)</source>
        <translation>Pozastavit zaškrtnuté položky</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>Zastavit zaškrtnuté položky</translation>
    </message>
    <message>
        <source>Open Source File Location</source>
        <translation>Otevřít umístění zdrojového souboru</translation>
    </message>
    <message>
        <source>Open Output File Location</source>
        <translation>Otevřít umístění výstupního souboru</translation>
    </message>
    <message>
        <source>Post Task Actions</source>
        <translation>Akce po dokončení</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Nic nedělat</translation>
    </message>
    <message>
        <source>Exit Program</source>
        <translation>Ukončit program</translation>
    </message>
    <message>
        <source>Shut Down</source>
        <translation>Vypnout</translation>
    </message>
    <message>
        <source>Log Off</source>
        <translation>Odhlásit</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Hibernace</translation>
    </message>
    <message>
        <source>Stand By</source>
        <translation>Úsporný režim</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Restartovat</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>&amp;Možnosti</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Předvolby...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Nápověda</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalizovat</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximalizovat</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>&amp;Open DVD</source>
        <translation>&amp;Otevřít DVD</translation>
    </message>
    <message>
        <source>&amp;Trim</source>
        <translation>&amp;Střih</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Oříznutí</translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation>&amp;Efekt</translation>
    </message>
    <message>
        <source>&amp;Merge</source>
        <translation>S&amp;loučit</translation>
    </message>
    <message>
        <source>&amp;Preference</source>
        <translation>&amp;Předvolby</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Ztlumit</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <translation>&amp;Profil:</translation>
    </message>
    <message>
        <source>Setting...</source>
        <translation>Nastavení...</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Uložit jako...</translation>
    </message>
    <message>
        <source>&amp;Destination:</source>
        <translation>&amp;Cíl:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procházet...</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pozice</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hlasitost</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Úlohy</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cíl</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>Celkový průběh</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Spustit</translation>
    </message>
    <message>
        <source>Open Files...</source>
        <translation>Otevřít soubory...</translation>
    </message>
    <message>
        <source>Open Folder...</source>
        <translation>Otevřít složku...</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Zesílit</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Zeslabit</translation>
    </message>
    <message>
        <source>Convert Selected Item(s)</source>
        <translation>Převést vybrané položky</translation>
    </message>
    <message>
        <source>Pause Selected Item(s)</source>
        <translation>Pozastavit vybrané položky</translation>
    </message>
    <message>
        <source>Stop Selected Item(s)</source>
        <translation>Zastavit vybrané položky</translation>
    </message>
    <message>
        <source>Convert All Item(s)</source>
        <translation>Převést všechny položky</translation>
    </message>
    <message>
        <source>Pause All Item(s)</source>
        <translation>Pozastavit všechny položky</translation>
    </message>
    <message>
        <source>Stop All Item(s)</source>
        <translation>Zastavit všechny položky</translation>
    </message>
</context>
<context>
    <name>saveAsDlg</name>
    <message>
        <source>Save As</source>
        <translation>Uložit jako</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Save As:</source>
        <translation>Uložit jako:</translation>
    </message>
</context>
<context>
    <name>splash</name>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. Všechna práva vyhrazena.</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Verze: %1</translation>
    </message>
</context>
</TS>
