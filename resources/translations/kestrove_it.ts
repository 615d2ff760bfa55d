<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
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
        <translation>Mostra fotogramma originale</translation>
    </message>
    <message>
        <source>Display Output Frame</source>
        <translation>Mostra fotogramma di output</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Salva con nome...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Rinomina...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Per iniziare</translation>
    </message>
    <message>
        <source>1. Click &quot;%1 Open DVD %2&quot; to Open DVD.</source>
        <translation>1. Fare clic su &quot;%1 Apri DVD %2&quot; per aprire un DVD.</translation>
    </message>
    <message>
        <source>2. Click &quot;%1 Trim&quot; or &quot;%2 Crop&quot; to edit video file.</source>
        <translation>2. Fare clic su &quot;%1 Taglia&quot; o &quot;%2 Ritaglia&quot; per modificare il file video.</translation>
    </message>
    <message>
        <source>3. Select output format from the &quot;Profile&quot; list.</source>
        <translation>3. Selezionare il formato di output dall&apos;elenco &quot;Profilo&quot;.</translation>
    </message>
    <message>
        <source>4. Click &quot;%1&quot; to convert.</source>
        <translation>4. Fare clic su &quot;%1&quot; per convertire.</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?</source>
        <translation>Interrompere davvero la conversione?</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Ripristina giù</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Please Select Output Folder</source>
        <translation>Selezionare la cartella di output</translation>
    </message>
    <message>
        <source>Please select a DVD drive or a DVD folder.</source>
        <translation>Selezionare un&apos;unità DVD o una cartella DVD.</translation>
    </message>
    <message>
        <source>Open IFO Files</source>
        <translation>Apri file IFO</translation>
    </message>
    <message>
        <source>IFO Files (*.ifo *.IFO)</source>
        <translation>File IFO (*.ifo *.IFO)</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento...</translation>
    </message>
    <message>
        <source>The IFO File is invalid.
%1</source>
        <translation>Il file IFO non è valido.
%1</translation>
    </message>
    <message>
        <source>Following files can not be loaded(They are not valid media files or their formats are not supported):</source>
        <translation>Impossibile caricare i seguenti file (non sono file multimediali validi o il loro formato non è supportato):</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tutti i file</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>Tutti i formati supportati</translation>
    </message>
    <message>
        <source>Supported Video</source>
        <translation>Video supportati</translation>
    </message>
    <message>
        <source>Supported Audio</source>
        <translation>Audio supportati</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Select a Folder</source>
        <translation>Seleziona una cartella</translation>
    </message>
    <message>
        <source>Audio Tracks</source>
        <translation>Tracce audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Sottotitoli</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Source file %1 not found!</source>
        <translation>File sorgente %1 non trovato!</translation>
    </message>
    <message>
        <source>Can not save the image.</source>
        <translation>Impossibile salvare l&apos;immagine.</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>Converti elementi spuntati</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>Interrompi elementi spuntati</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Elapsed Time: %1 Remaining Time: %2 Progress: </source>
        <translation>Tempo trascorso: %1 Tempo rimanente: %2 Avanzamento: </translation>
    </message>
    <message>
        <source>Conversion finished</source>
        <translation>Conversione completata</translation>
    </message>
    <message>
        <source>Succeeded: %1, failed: %2</source>
        <translation>Riuscite: %1, non riuscite: %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Your profiles could not be saved.
%1</source>
        <translation>Impossibile salvare i profili personali.
%1</translation>
    </message>
    <message>
        <source>Are you sure to apply current profile settings to all items?</source>
        <translation>Applicare davvero le impostazioni del profilo corrente a tutti gli elementi?</translation>
    </message>
</context>
<context>
    <name>CPlayPauseButton</name>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
</context>
<context>
    <name>CProfileCombo</name>
    <message>
        <source>Profile</source>
        <translation>Profilo</translation>
    </message>
</context>
<context>
    <name>CProfileMenu</name>
    <message>
        <source>Recommended</source>
        <translation>Consigliato</translation>
    </message>
</context>
<context>
    <name>CSearchLineEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>Cancella la ricerca</translation>
    </message>
</context>
<context>
    <name>CustomItemWidget</name>
    <message>
        <source>Convert This Item</source>
        <translation>Converti questo elemento</translation>
    </message>
    <message>
        <source>Audio Track</source>
        <translation>Traccia audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Sottotitoli</translation>
    </message>
    <message>
        <source>Output Name</source>
        <translation>Nome di output</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profilo</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Stop Converting</source>
        <translation>Interrompi conversione</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Espandi</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Rimanente</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kbps</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Percorso</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Edit Audio</source>
        <translation>Modifica audio</translation>
    </message>
    <message>
        <source>Edit Subtitle</source>
        <translation>Modifica sottotitoli</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>In attesa...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Pending...</source>
        <translation>In sospeso...</translation>
    </message>
    <message>
        <source>Succeed</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Comprimi</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?
Some of the unfinished files cannot be played properly.</source>
        <translation>Interrompere davvero la conversione?
Alcuni dei file non completati non potranno essere riprodotti correttamente.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Riprendi</translation>
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
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>General Video</source>
        <translation>Video generico</translation>
    </message>
    <message>
        <source>General Audio</source>
        <translation>Audio generico</translation>
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
        <translation>Video HD</translation>
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
        <translation>Telefono cellulare</translation>
    </message>
    <message>
        <source>Picture and Animation</source>
        <translation>Immagini e animazioni</translation>
    </message>
    <message>
        <source>Portable Multimedia Device</source>
        <translation>Dispositivo multimediale portatile</translation>
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
        <translation>Video HD per Xbox</translation>
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
        <translation>Advanced Streaming Format, un contenitore Windows Media.</translation>
    </message>
    <message>
        <source>AVI - Audio-Video Interleaved</source>
        <translation>AVI - Audio-Video Interleaved</translation>
    </message>
    <message>
        <source>Audio-Video Interleaved, the classic Windows video format.</source>
        <translation>Audio-Video Interleaved, il classico formato video di Windows.</translation>
    </message>
    <message>
        <source>DivX Video</source>
        <translation>Video DivX</translation>
    </message>
    <message>
        <source>DivX video in an AVI container.</source>
        <translation>Video DivX in un contenitore AVI.</translation>
    </message>
    <message>
        <source>DV - Digital Video format</source>
        <translation>DV - Formato video digitale</translation>
    </message>
    <message>
        <source>Digital Video format of camcorders.</source>
        <translation>Formato video digitale delle videocamere.</translation>
    </message>
    <message>
        <source>DVD Video</source>
        <translation>Video DVD</translation>
    </message>
    <message>
        <source>MPEG-2 video for DVD players.</source>
        <translation>Video MPEG-2 per lettori DVD.</translation>
    </message>
    <message>
        <source>MOV - QuickTime</source>
        <translation>MOV - QuickTime</translation>
    </message>
    <message>
        <source>QuickTime movie format.</source>
        <translation>Formato filmato QuickTime.</translation>
    </message>
    <message>
        <source>MPEG4 Video</source>
        <translation>Video MPEG4</translation>
    </message>
    <message>
        <source>MPEG-4 video format.</source>
        <translation>Formato video MPEG-4.</translation>
    </message>
    <message>
        <source>MPEG1 Video</source>
        <translation>Video MPEG1</translation>
    </message>
    <message>
        <source>MPEG-1 video format.</source>
        <translation>Formato video MPEG-1.</translation>
    </message>
    <message>
        <source>MPEG2 Video</source>
        <translation>Video MPEG2</translation>
    </message>
    <message>
        <source>MPEG-2 video format.</source>
        <translation>Formato video MPEG-2.</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC Video</source>
        <translation>Video H.264/MPEG-4 AVC</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC video format.</source>
        <translation>Formato video H.264/MPEG-4 AVC.</translation>
    </message>
    <message>
        <source>RM - Real Video</source>
        <translation>RM - Real Video</translation>
    </message>
    <message>
        <source>RealVideo streaming format.</source>
        <translation>Formato di streaming RealVideo.</translation>
    </message>
    <message>
        <source>VCD Video</source>
        <translation>Video VCD</translation>
    </message>
    <message>
        <source>MPEG-1 video for Video CD players.</source>
        <translation>Video MPEG-1 per lettori Video CD.</translation>
    </message>
    <message>
        <source>WMV - Windows Media Video</source>
        <translation>WMV - Windows Media Video</translation>
    </message>
    <message>
        <source>Windows Media Video format.</source>
        <translation>Formato Windows Media Video.</translation>
    </message>
    <message>
        <source>Xvid Video</source>
        <translation>Video Xvid</translation>
    </message>
    <message>
        <source>Xvid video in an AVI container.</source>
        <translation>Video Xvid in un contenitore AVI.</translation>
    </message>
    <message>
        <source>Matroska Video</source>
        <translation>Video Matroska</translation>
    </message>
    <message>
        <source>Matroska video format.</source>
        <translation>Formato video Matroska.</translation>
    </message>
    <message>
        <source>WebM Video</source>
        <translation>Video WebM</translation>
    </message>
    <message>
        <source>WebM video format for the web.</source>
        <translation>Formato video WebM per il Web.</translation>
    </message>
    <message>
        <source>AC3 - Dolby Digital AC-3</source>
        <translation>AC3 - Dolby Digital AC-3</translation>
    </message>
    <message>
        <source>Dolby Digital AC-3 audio format.</source>
        <translation>Formato audio Dolby Digital AC-3.</translation>
    </message>
    <message>
        <source>AIFF - Audio Interchange File Format</source>
        <translation>AIFF - Audio Interchange File Format</translation>
    </message>
    <message>
        <source>Audio Interchange File Format, uncompressed audio.</source>
        <translation>Audio Interchange File Format, audio non compresso.</translation>
    </message>
    <message>
        <source>ALAC - Apple Lossless Audio Codec</source>
        <translation>ALAC - Apple Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Apple Lossless audio format.</source>
        <translation>Formato audio Apple Lossless.</translation>
    </message>
    <message>
        <source>FLAC - Free Lossless Audio Codec</source>
        <translation>FLAC - Free Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec format.</source>
        <translation>Formato audio senza perdita Free Lossless Audio Codec.</translation>
    </message>
    <message>
        <source>SUN AU Format</source>
        <translation>Formato SUN AU</translation>
    </message>
    <message>
        <source>Sun AU audio format.</source>
        <translation>Formato audio Sun AU.</translation>
    </message>
    <message>
        <source>M4A - MPEG-4 Audio</source>
        <translation>M4A - Audio MPEG-4</translation>
    </message>
    <message>
        <source>MPEG-4 Audio format.</source>
        <translation>Formato audio MPEG-4.</translation>
    </message>
    <message>
        <source>MP2 - MPEG Layer-2 Audio</source>
        <translation>MP2 - Audio MPEG Layer-2</translation>
    </message>
    <message>
        <source>MPEG Layer-2 audio format.</source>
        <translation>Formato audio MPEG Layer-2.</translation>
    </message>
    <message>
        <source>MP3 - MPEG Layer-3 Audio</source>
        <translation>MP3 - Audio MPEG Layer-3</translation>
    </message>
    <message>
        <source>MPEG Layer-3 audio format.</source>
        <translation>Formato audio MPEG Layer-3.</translation>
    </message>
    <message>
        <source>OGG - Ogg Vorbis Audio</source>
        <translation>OGG - Audio Ogg Vorbis</translation>
    </message>
    <message>
        <source>Ogg Vorbis audio format.</source>
        <translation>Formato audio Ogg Vorbis.</translation>
    </message>
    <message>
        <source>RA - RealAudio</source>
        <translation>RA - RealAudio</translation>
    </message>
    <message>
        <source>RealAudio streaming format.</source>
        <translation>Formato di streaming RealAudio.</translation>
    </message>
    <message>
        <source>WAV - Waveform Audio</source>
        <translation>WAV - Waveform Audio</translation>
    </message>
    <message>
        <source>Waveform audio format, uncompressed.</source>
        <translation>Formato audio Waveform, non compresso.</translation>
    </message>
    <message>
        <source>WMA - Windows Media Audio</source>
        <translation>WMA - Windows Media Audio</translation>
    </message>
    <message>
        <source>Windows Media Audio format.</source>
        <translation>Formato Windows Media Audio.</translation>
    </message>
    <message>
        <source>Android MPEG4 Video</source>
        <translation>Video MPEG4 per Android</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Android</source>
        <translation>Profilo MPEG4 ottimizzato per Android</translation>
    </message>
    <message>
        <source>Samsung Galaxy S3 H.264 Video</source>
        <translation>Video H.264 per Samsung Galaxy S3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Galaxy S3</source>
        <translation>Profilo H.264/MPEG-4 AVC ottimizzato per Galaxy S3</translation>
    </message>
    <message>
        <source>Samsung Galaxy Tab MPEG4 Video</source>
        <translation>Video MPEG4 per Samsung Galaxy Tab</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Galaxy Tab</source>
        <translation>Profilo MPEG4 ottimizzato per Galaxy Tab</translation>
    </message>
    <message>
        <source>Apple TV H.264 Video</source>
        <translation>Video H.264 per Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV</source>
        <translation>Profilo H.264/MPEG-4 AVC ottimizzato per Apple TV</translation>
    </message>
    <message>
        <source>Apple TV H.264 HD Video</source>
        <translation>Video HD H.264 per Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV HD</source>
        <translation>Profilo H.264/MPEG-4 AVC ottimizzato per Apple TV HD</translation>
    </message>
    <message>
        <source>Apple TV 3 H.264 1080P Video</source>
        <translation>Video H.264 1080P per Apple TV 3</translation>
    </message>
    <message>
        <source>Apple TV MPEG4 Video</source>
        <translation>Video MPEG4 per Apple TV</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Apple TV</source>
        <translation>Profilo MPEG4 ottimizzato per Apple TV</translation>
    </message>
    <message>
        <source>HD ASF Video</source>
        <translation>Video HD ASF</translation>
    </message>
    <message>
        <source>ASF profile optimized for HD players</source>
        <translation>Profilo ASF ottimizzato per lettori HD</translation>
    </message>
    <message>
        <source>HD AVI Video</source>
        <translation>Video HD AVI</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for HD players</source>
        <translation>Profilo MPEG4 AVI ottimizzato per lettori HD</translation>
    </message>
    <message>
        <source>HD H.264/MPEG-4 AVC Video</source>
        <translation>Video HD H.264/MPEG-4 AVC</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for HD players</source>
        <translation>Profilo H.264/MPEG-4 AVC ottimizzato per lettori HD</translation>
    </message>
    <message>
        <source>HD Quick Time Video</source>
        <translation>Video HD QuickTime</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for HD players</source>
        <translation>Profilo MPEG4 ottimizzato per lettori HD</translation>
    </message>
    <message>
        <source>MPEG2-PS HD Video</source>
        <translation>Video HD MPEG2-PS</translation>
    </message>
    <message>
        <source>MPEG2 profile optimized for HD players</source>
        <translation>Profilo MPEG2 ottimizzato per lettori HD</translation>
    </message>
    <message>
        <source>MPEG2-TS HD Video</source>
        <translation>Video HD MPEG2-TS</translation>
    </message>
    <message>
        <source>MPEG4 HD Video</source>
        <translation>Video HD MPEG4</translation>
    </message>
    <message>
        <source>RM HD Video</source>
        <translation>Video HD RM</translation>
    </message>
    <message>
        <source>RealVideo profile optimized for HD players</source>
        <translation>Profilo RealVideo ottimizzato per lettori HD</translation>
    </message>
    <message>
        <source>HD WMV Video</source>
        <translation>Video HD WMV</translation>
    </message>
    <message>
        <source>WMV profile optimized for HD players</source>
        <translation>Profilo WMV ottimizzato per lettori HD</translation>
    </message>
    <message>
        <source>XVID HD Video</source>
        <translation>Video HD XVID</translation>
    </message>
    <message>
        <source>Xvid profile optimized for HD players</source>
        <translation>Profilo Xvid ottimizzato per lettori HD</translation>
    </message>
    <message>
        <source>iPad H.264 Video</source>
        <translation>Video H.264 per iPad</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPad</source>
        <translation>Profilo H.264/MPEG-4 AVC ottimizzato per iPad</translation>
    </message>
    <message>
        <source>iPad H.264 HD Video</source>
        <translation>Video HD H.264 per iPad</translation>
    </message>
    <message>
        <source>iPad MPEG4 Video</source>
        <translation>Video MPEG4 per iPad</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPad</source>
        <translation>Profilo MPEG4 ottimizzato per iPad</translation>
    </message>
    <message>
        <source>iPad 2 H.264 Video</source>
        <translation>Video H.264 per iPad 2</translation>
    </message>
    <message>
        <source>iPad 2 H.264 HD Video</source>
        <translation>Video HD H.264 per iPad 2</translation>
    </message>
    <message>
        <source>iPad 2 MPEG4 Video</source>
        <translation>Video MPEG4 per iPad 2</translation>
    </message>
    <message>
        <source>iPad 3 1080P Video</source>
        <translation>Video 1080P per iPad 3</translation>
    </message>
    <message>
        <source>iPad mini H.264 Video</source>
        <translation>Video H.264 per iPad mini</translation>
    </message>
    <message>
        <source>iPhone H.264 Video</source>
        <translation>Video H.264 per iPhone</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPhone</source>
        <translation>Profilo H.264/MPEG-4 AVC ottimizzato per iPhone</translation>
    </message>
    <message>
        <source>iPhone MPEG4 Video</source>
        <translation>Video MPEG4 per iPhone</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPhone</source>
        <translation>Profilo MPEG4 ottimizzato per iPhone</translation>
    </message>
    <message>
        <source>iPhone 4 H.264 Video</source>
        <translation>Video H.264 per iPhone 4</translation>
    </message>
    <message>
        <source>iPhone 4 MPEG4 Video</source>
        <translation>Video MPEG4 per iPhone 4</translation>
    </message>
    <message>
        <source>iPhone 5 H.264 Video</source>
        <translation>Video H.264 per iPhone 5</translation>
    </message>
    <message>
        <source>iPod H.264 Video</source>
        <translation>Video H.264 per iPod</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod</source>
        <translation>Profilo H.264/MPEG-4 AVC ottimizzato per iPod</translation>
    </message>
    <message>
        <source>iPod MPEG4 Video</source>
        <translation>Video MPEG4 per iPod</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod</source>
        <translation>Profilo MPEG4 ottimizzato per iPod</translation>
    </message>
    <message>
        <source>iPod touch H.264 Video</source>
        <translation>Video H.264 per iPod touch</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod touch</source>
        <translation>Profilo H.264/MPEG-4 AVC ottimizzato per iPod touch</translation>
    </message>
    <message>
        <source>iPod touch MPEG4 Video</source>
        <translation>Video MPEG4 per iPod touch</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod touch</source>
        <translation>Profilo MPEG4 ottimizzato per iPod touch</translation>
    </message>
    <message>
        <source>iPod touch 4 H.264 Video</source>
        <translation>Video H.264 per iPod touch 4</translation>
    </message>
    <message>
        <source>iPod touch 4 MPEG4 Video</source>
        <translation>Video MPEG4 per iPod touch 4</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Stereo</source>
        <translation>Video 3GP per cellulare - Stereo</translation>
    </message>
    <message>
        <source>3GP profile optimized for mobile phones</source>
        <translation>Profilo 3GP ottimizzato per telefoni cellulari</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Mono</source>
        <translation>Video 3GP per cellulare - Mono</translation>
    </message>
    <message>
        <source>BlackBerry 3GP Video</source>
        <translation>Video 3GP per BlackBerry</translation>
    </message>
    <message>
        <source>BlackBerry AVI Video</source>
        <translation>Video AVI per BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for mobile phones</source>
        <translation>Profilo MPEG4 AVI ottimizzato per telefoni cellulari</translation>
    </message>
    <message>
        <source>BlackBerry MPEG4 Video</source>
        <translation>Video MPEG4 per BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for mobile phones</source>
        <translation>Profilo MPEG4 ottimizzato per telefoni cellulari</translation>
    </message>
    <message>
        <source>WMV Video for Mobile Phone</source>
        <translation>Video WMV per cellulare</translation>
    </message>
    <message>
        <source>WMV profile optimized for mobile phones</source>
        <translation>Profilo WMV ottimizzato per telefoni cellulari</translation>
    </message>
    <message>
        <source>FLV - Flash Video Format</source>
        <translation>FLV - Formato Flash Video</translation>
    </message>
    <message>
        <source>Flash video format for web pages.</source>
        <translation>Formato video Flash per pagine web.</translation>
    </message>
    <message>
        <source>Picture - BMP format</source>
        <translation>Immagine - Formato BMP</translation>
    </message>
    <message>
        <source>Pictures captured from the video as BMP files.</source>
        <translation>Immagini catturate dal video come file BMP.</translation>
    </message>
    <message>
        <source>Picture - GIF Animation format</source>
        <translation>Immagine - Formato GIF animato</translation>
    </message>
    <message>
        <source>An animated GIF picture made from the video.</source>
        <translation>Un&apos;immagine GIF animata creata dal video.</translation>
    </message>
    <message>
        <source>Picture - JPEG format</source>
        <translation>Immagine - Formato JPEG</translation>
    </message>
    <message>
        <source>Pictures captured from the video as JPEG files.</source>
        <translation>Immagini catturate dal video come file JPEG.</translation>
    </message>
    <message>
        <source>Picture - PNG format</source>
        <translation>Immagine - Formato PNG</translation>
    </message>
    <message>
        <source>Pictures captured from the video as PNG files.</source>
        <translation>Immagini catturate dal video come file PNG.</translation>
    </message>
    <message>
        <source>SWF - SWF Format</source>
        <translation>SWF - Formato SWF</translation>
    </message>
    <message>
        <source>Shockwave Flash animation format.</source>
        <translation>Formato di animazione Shockwave Flash.</translation>
    </message>
    <message>
        <source>Archos MPEG4</source>
        <translation>Archos MPEG4</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for portable players</source>
        <translation>Profilo MPEG4 ottimizzato per lettori portatili</translation>
    </message>
    <message>
        <source>Creative ZEN MPEG4 Video</source>
        <translation>Video MPEG4 per Creative ZEN</translation>
    </message>
    <message>
        <source>iRiver MPEG4 Video</source>
        <translation>Video MPEG4 per iRiver</translation>
    </message>
    <message>
        <source>PS3 H.264 Video</source>
        <translation>Video H.264 per PS3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for PS3</source>
        <translation>Profilo H.264/MPEG-4 AVC ottimizzato per PS3</translation>
    </message>
    <message>
        <source>PSP MPEG-4 Video</source>
        <translation>Video MPEG-4 per PSP</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for PSP</source>
        <translation>Profilo MPEG4 ottimizzato per PSP</translation>
    </message>
    <message>
        <source>Xbox360 H.264 Video</source>
        <translation>Video H.264 per Xbox360</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Xbox360</source>
        <translation>Profilo H.264/MPEG-4 AVC ottimizzato per Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 MPEG4 Video</source>
        <translation>Video MPEG4 per Xbox360</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Xbox360</source>
        <translation>Profilo MPEG4 ottimizzato per Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 WMV Video</source>
        <translation>Video WMV per Xbox360</translation>
    </message>
    <message>
        <source>WMV profile optimized for Xbox360</source>
        <translation>Profilo WMV ottimizzato per Xbox360</translation>
    </message>
    <message>
        <source>Zune MPEG4 Video</source>
        <translation>Video MPEG4 per Zune</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Zune</source>
        <translation>Profilo MPEG4 ottimizzato per Zune</translation>
    </message>
</context>
<context>
    <name>ProfileGroupLoader</name>
    <message>
        <source>Untitled</source>
        <translation>Senza titolo</translation>
    </message>
</context>
<context>
    <name>ProfileMenu</name>
    <message>
        <source>Previous group</source>
        <translation>Gruppo precedente</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppi</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>Gruppo successivo</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>Cerca profili</translation>
    </message>
    <message>
        <source>Previous profile</source>
        <translation>Profilo precedente</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Next profile</source>
        <translation>Profilo successivo</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>Cerca profilo...</translation>
    </message>
</context>
<context>
    <name>QtColorComboBox</name>
    <message>
        <source>More...</source>
        <translation>Altro...</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Bianco</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Rosso scuro</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Verde scuro</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Blu scuro</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation>Ciano scuro</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>Magenta scuro</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>Giallo scuro</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Grigio</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Grigio scuro</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Grigio chiaro</translation>
    </message>
    <message>
        <source>User color %1</source>
        <translation>Colore utente %1</translation>
    </message>
    <message>
        <source>User Color 99</source>
        <translation>Colore utente 99</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
</context>
<context>
    <name>QxLanguage</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Lingua</translation>
    </message>
</context>
<context>
    <name>QxSkin</name>
    <message>
        <source>&amp;Skin</source>
        <translation>&amp;Aspetto</translation>
    </message>
</context>
<context>
    <name>SettingDialog</name>
    <message>
        <source>Advanced Settings</source>
        <translation>Impostazioni avanzate</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>Semplice</translation>
    </message>
    <message>
        <source>Video Size:</source>
        <translation>Dimensione video:</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>Dimensione video</translation>
    </message>
    <message>
        <source>Video Quality:</source>
        <translation>Qualità video:</translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation>Qualità video</translation>
    </message>
    <message>
        <source>Audio Quality:</source>
        <translation>Qualità audio:</translation>
    </message>
    <message>
        <source>Audio Quality</source>
        <translation>Qualità audio</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Apply To All</source>
        <translation>Applica a tutti</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Picture Format</source>
        <translation>Formato immagine</translation>
    </message>
    <message>
        <source>Picture format.</source>
        <translation>Formato file delle immagini catturate.</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Intervallo</translation>
    </message>
    <message>
        <source>Select how many seconds to capture one picture.</source>
        <translation>Indica ogni quanti secondi catturare un&apos;immagine.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Video options</source>
        <translation>Opzioni video</translation>
    </message>
    <message>
        <source>Video Codec</source>
        <translation>Codec video</translation>
    </message>
    <message>
        <source>Set the video codec (methods of compression for digital videos, e.g., MPEG-4, H.264 or WMV) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>Imposta il codec video (metodo di compressione del video digitale, ad es. MPEG-4, H.264 o WMV) usato dal motore di codifica. Di solito dipende dal formato di output scelto.</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>Dimensioni video</translation>
    </message>
    <message>
        <source>Set frame size. The format is &apos;width x height&apos; like 320x240, 640x480 or 1920x1080 pixels. You can choose an similar size for your playback device screen resolution.</source>
        <translation>Imposta le dimensioni del fotogramma. Il formato è &quot;larghezza x altezza&quot;, ad es. 320x240, 640x480 o 1920x1080 pixel. Puoi scegliere dimensioni simili alla risoluzione dello schermo del dispositivo di riproduzione.</translation>
    </message>
    <message>
        <source>Video Bitrate</source>
        <translation>Bitrate video</translation>
    </message>
    <message>
        <source>Set the video bit rate in kilobit per second. This is the key factor that is related to the output file size and video quality -- the larger the bit rate, the better the video quality and the bigger the output file you will get, and vice versa.</source>
        <translation>Imposta il bitrate video in kilobit al secondo. È il fattore chiave da cui dipendono le dimensioni del file di output e la qualità video: più alto è il bitrate, migliore è la qualità e più grande il file di output, e viceversa.</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Frame rate</translation>
    </message>
    <message>
        <source>Set how many frames should be displayed per second (FPS). Higher frame rate increases the smoothness when played back, and usually 25--30 frame per second can provide you with a very good viewing experience.</source>
        <translation>Imposta quanti fotogrammi vengono visualizzati al secondo (FPS). Un frame rate più alto rende la riproduzione più fluida; di solito 25-30 fotogrammi al secondo offrono già un&apos;ottima esperienza di visione.</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Proporzioni</translation>
    </message>
    <message>
        <source>Set width to height ratio according to the screen aspect of your playback device . (4:3, 16:9 or 1.3333, 1.7777).</source>
        <translation>Imposta il rapporto tra larghezza e altezza in base alle proporzioni dello schermo del dispositivo di riproduzione (4:3, 16:9 o 1.3333, 1.7777).</translation>
    </message>
    <message>
        <source>Same Quality</source>
        <translation>Stessa qualità</translation>
    </message>
    <message>
        <source>This function enables you to get good output video quality as the source. (Sometimes this function may bring you a large output file, or make the converting time pretty long.)</source>
        <translation>Questa funzione consente di ottenere un video di output di qualità pari alla sorgente. (A volte può produrre un file di output molto grande o allungare parecchio i tempi di conversione.)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Select zoom mode, that is how to deal with the blank edge when the aspect of the source and the destination is different.</source>
        <translation>Seleziona la modalità di zoom, cioè come gestire i bordi vuoti quando le proporzioni della sorgente e della destinazione sono diverse.</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Audio options</source>
        <translation>Opzioni audio</translation>
    </message>
    <message>
        <source>Audio Codec</source>
        <translation>Codec audio</translation>
    </message>
    <message>
        <source>Set the audio codec (methods of compression for digital audio, e.g., MP3, PCM or AC3) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>Imposta il codec audio (metodo di compressione dell&apos;audio digitale, ad es. MP3, PCM o AC3) usato dal motore di codifica. Di solito dipende dal formato di output scelto.</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>Bitrate audio</translation>
    </message>
    <message>
        <source>Set audio bitrate (in kbit/s)</source>
        <translation>Imposta il bitrate audio (in kbit/s)</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Campionamento</translation>
    </message>
    <message>
        <source>Set the audio sampling frequency (the number of samples per second) (default = 44100 Hz).</source>
        <translation>Imposta la frequenza di campionamento dell&apos;audio, cioè il numero di campioni al secondo (predefinita = 44100 Hz).</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Set number of audio channels, 1(Mono), 2(Stereo) and 5.1(Dolby Digital) are commonly used for general digital audio.</source>
        <translation>Imposta il numero di canali audio; per l&apos;audio digitale i più usati sono 1 (mono), 2 (stereo) e 5.1 (Dolby Digital).</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Set the output volume.</source>
        <translation>Imposta il volume di uscita.</translation>
    </message>
    <message>
        <source>Disable Audio</source>
        <translation>Disattiva audio</translation>
    </message>
    <message>
        <source>Disable audio</source>
        <translation>Crea l&apos;output senza traccia audio</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Summary of the file</source>
        <translation>Informazioni di riepilogo del file</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Set the title</source>
        <translation>Imposta il titolo</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autore</translation>
    </message>
    <message>
        <source>Set the author</source>
        <translation>Imposta l&apos;autore</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Set the copyright</source>
        <translation>Imposta la nota di copyright</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commenti</translation>
    </message>
    <message>
        <source>Set the comment</source>
        <translation>Imposta il commento</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genere</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositore</translation>
    </message>
    <message>
        <source>Orig. Artist</source>
        <translation>Artista orig.</translation>
    </message>
    <message>
        <source>Encoded by</source>
        <translation>Codificato da</translation>
    </message>
    <message>
        <source>Url</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Anno</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>Expert options</source>
        <translation>Opzioni avanzate</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametri</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Title_%1</source>
        <translation>Titolo_%1</translation>
    </message>
    <message>
        <source>Merge %1</source>
        <translation>Unione %1</translation>
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
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>Open DVD...</source>
        <translation>Apri DVD...</translation>
    </message>
    <message>
        <source>Open DVD Folder...</source>
        <translation>Apri cartella DVD...</translation>
    </message>
    <message>
        <source>Open IFO Files...</source>
        <translation>Apri file IFO...</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>Carica progetto...</translation>
    </message>
    <message>
        <source>Save Project...</source>
        <translation>Salva progetto...</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>Salva progetto con nome...</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>Cerca profilo...</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>Proprietà...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Sposta</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>In cima</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>In fondo</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Duplica</translation>
    </message>
    <message>
        <source>Remove Selected Item(s)</source>
        <translation>Rimuovi elementi selezionati</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Cancella tutto</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Deseleziona tutto</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Inverti selezione</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>Spunta tutto</translation>
    </message>
    <message>
        <source>Uncheck All</source>
        <translation>Togli tutte le spunte</translation>
    </message>
    <message>
        <source>Invert Check</source>
        <translation>Inverti spunte</translation>
    </message>
    <message>
        <source>Merge Selected into One</source>
        <translation>Unisci selezionati in uno</translation>
    </message>
    <message>
        <source>Split by Chapter</source>
        <translation>Dividi per capitolo</translation>
    </message>
    <message>
        <source>Add Output Profile...</source>
        <translation>Aggiungi profilo di output...</translation>
    </message>
    <message>
        <source>Apply Profile to All</source>
        <translation>Applica profilo a tutti</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Riproduci</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Riproduci/Pausa</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Precedente</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Successivo</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Istantanea</translation>
    </message>
    <message>
        <source>Open Snapshot Folder</source>
        <translation>Apri cartella istantanee</translation>
    </message>
    <message>
        <source>Change Snapshot Folder</source>
        <translation>Cambia cartella istantanee</translation>
    </message>
    <message>
        <source>Snapshot Format</source>
        <translation>Formato istantanea</translation>
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
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation>&amp;Clip</translation>
    </message>
    <message>
        <source>Trim...</source>
        <translation>Taglia...</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>Ritaglia...</translation>
    </message>
    <message>
        <source>Smart Crop</source>
        <translation>Ritaglio intelligente</translation>
    </message>
    <message>
        <source>Watermark...</source>
        <translation>Filigrana...</translation>
    </message>
    <message>
        <source>Effect...</source>
        <translation>Effetto...</translation>
    </message>
    <message>
        <source>Clear All Effects</source>
        <translation>Rimuovi tutti gli effetti</translation>
    </message>
    <message>
        <source>Audio Track...</source>
        <translation>Traccia audio...</translation>
    </message>
    <message>
        <source>Subtitle...</source>
        <translation>Sottotitoli...</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>&amp;Azione</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>Converti elementi spuntati</translation>
    </message>
    <message>
        <source>Pause Checked Item(s)</source>
        <translation>Sospendi elementi spuntati</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>Interrompi elementi spuntati</translation>
    </message>
    <message>
        <source>Open Source File Location</source>
        <translation>Apri percorso file di origine</translation>
    </message>
    <message>
        <source>Open Output File Location</source>
        <translation>Apri percorso file di output</translation>
    </message>
    <message>
        <source>Post Task Actions</source>
        <translation>Azioni al termine</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Nessuna azione</translation>
    </message>
    <message>
        <source>Exit Program</source>
        <translation>Esci dal programma</translation>
    </message>
    <message>
        <source>Shut Down</source>
        <translation>Arresta il sistema</translation>
    </message>
    <message>
        <source>Log Off</source>
        <translation>Disconnetti</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Iberna</translation>
    </message>
    <message>
        <source>Stand By</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Riavvia</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>&amp;Opzioni</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferenze...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Guida</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni su</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>&amp;Open DVD</source>
        <translation>A&amp;pri DVD</translation>
    </message>
    <message>
        <source>&amp;Trim</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>R&amp;itaglia</translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation>&amp;Effetto</translation>
    </message>
    <message>
        <source>&amp;Merge</source>
        <translation>&amp;Unisci</translation>
    </message>
    <message>
        <source>&amp;Preference</source>
        <translation>Pre&amp;ferenze</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Disattiva audio</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <translation>&amp;Profilo:</translation>
    </message>
    <message>
        <source>Setting...</source>
        <translation>Impostazioni...</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Salva con nome...</translation>
    </message>
    <message>
        <source>&amp;Destination:</source>
        <translation>&amp;Destinazione:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Attività</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profilo</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>Avanzamento totale</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Open Files...</source>
        <translation>Apri file...</translation>
    </message>
    <message>
        <source>Open Folder...</source>
        <translation>Apri cartella...</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Alza</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abbassa</translation>
    </message>
    <message>
        <source>Convert Selected Item(s)</source>
        <translation>Converti gli elementi selezionati</translation>
    </message>
    <message>
        <source>Pause Selected Item(s)</source>
        <translation>Sospendi gli elementi selezionati</translation>
    </message>
    <message>
        <source>Stop Selected Item(s)</source>
        <translation>Interrompi gli elementi selezionati</translation>
    </message>
    <message>
        <source>Convert All Item(s)</source>
        <translation>Converti tutti gli elementi</translation>
    </message>
    <message>
        <source>Pause All Item(s)</source>
        <translation>Sospendi tutti gli elementi</translation>
    </message>
    <message>
        <source>Stop All Item(s)</source>
        <translation>Interrompi tutti gli elementi</translation>
    </message>
</context>
<context>
    <name>saveAsDlg</name>
    <message>
        <source>Save As</source>
        <translation>Salva con nome</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Save As:</source>
        <translation>Salva con nome:</translation>
    </message>
</context>
<context>
    <name>splash</name>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. Tutti i diritti riservati.</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Versione: %1</translation>
    </message>
</context>
</TS>
