<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
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
        <translation>Mostrar fotograma original</translation>
    </message>
    <message>
        <source>Display Output Frame</source>
        <translation>Mostrar fotograma de salida</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Guardar como...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Renombrar...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Primeros pasos</translation>
    </message>
    <message>
        <source>1. Click &quot;%1 Open DVD %2&quot; to Open DVD.</source>
        <translation>1. Haga clic en &quot;%1 Abrir DVD %2&quot; para abrir un DVD.</translation>
    </message>
    <message>
        <source>2. Click &quot;%1 Trim&quot; or &quot;%2 Crop&quot; to edit video file.</source>
        <translation>2. Haga clic en &quot;%1 Cortar&quot; o &quot;%2 Recortar&quot; para editar el archivo de vídeo.</translation>
    </message>
    <message>
        <source>3. Select output format from the &quot;Profile&quot; list.</source>
        <translation>3. Seleccione el formato de salida en la lista &quot;Perfil&quot;.</translation>
    </message>
    <message>
        <source>4. Click &quot;%1&quot; to convert.</source>
        <translation>4. Haga clic en &quot;%1&quot; para convertir.</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?</source>
        <translation>¿Está seguro de que desea detener la conversión?</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Please Select Output Folder</source>
        <translation>Seleccione la carpeta de salida</translation>
    </message>
    <message>
        <source>Please select a DVD drive or a DVD folder.</source>
        <translation>Seleccione una unidad de DVD o una carpeta de DVD.</translation>
    </message>
    <message>
        <source>Open IFO Files</source>
        <translation>Abrir archivos IFO</translation>
    </message>
    <message>
        <source>IFO Files (*.ifo *.IFO)</source>
        <translation>Archivos IFO (*.ifo *.IFO)</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>The IFO File is invalid.
%1</source>
        <translation>El archivo IFO no es válido.
%1</translation>
    </message>
    <message>
        <source>Following files can not be loaded(They are not valid media files or their formats are not supported):</source>
        <translation>No se pueden cargar los siguientes archivos (no son archivos multimedia válidos o su formato no es compatible):</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>Todos los formatos compatibles</translation>
    </message>
    <message>
        <source>Supported Video</source>
        <translation>Vídeo compatible</translation>
    </message>
    <message>
        <source>Supported Audio</source>
        <translation>Audio compatible</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Select a Folder</source>
        <translation>Seleccione una carpeta</translation>
    </message>
    <message>
        <source>Audio Tracks</source>
        <translation>Pistas de audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Subtítulos</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Source file %1 not found!</source>
        <translation>¡No se encontró el archivo de origen %1!</translation>
    </message>
    <message>
        <source>Can not save the image.</source>
        <translation>No se puede guardar la imagen.</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>Convertir elementos marcados</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>Detener elementos marcados</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Elapsed Time: %1 Remaining Time: %2 Progress: </source>
        <translation>Tiempo transcurrido: %1 Tiempo restante: %2 Progreso: </translation>
    </message>
    <message>
        <source>Conversion finished</source>
        <translation>Conversión terminada</translation>
    </message>
    <message>
        <source>Succeeded: %1, failed: %2</source>
        <translation>Correctas: %1, fallidas: %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Your profiles could not be saved.
%1</source>
        <translation>No se han podido guardar sus perfiles.
%1</translation>
    </message>
    <message>
        <source>Are you sure to apply current profile settings to all items?</source>
        <translation>¿Seguro que desea aplicar la configuración del perfil actual a todos los elementos?</translation>
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
        <translation>Reproducir</translation>
    </message>
</context>
<context>
    <name>CProfileCombo</name>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
</context>
<context>
    <name>CProfileMenu</name>
    <message>
        <source>Recommended</source>
        <translation>Recomendado</translation>
    </message>
</context>
<context>
    <name>CSearchLineEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
</context>
<context>
    <name>CustomItemWidget</name>
    <message>
        <source>Convert This Item</source>
        <translation>Convertir este elemento</translation>
    </message>
    <message>
        <source>Audio Track</source>
        <translation>Pista de audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Subtítulo</translation>
    </message>
    <message>
        <source>Output Name</source>
        <translation>Nombre de salida</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Stop Converting</source>
        <translation>Detener la conversión</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Expandir</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kbps</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Edit Audio</source>
        <translation>Editar audio</translation>
    </message>
    <message>
        <source>Edit Subtitle</source>
        <translation>Editar subtítulos</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Esperando...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Pending...</source>
        <translation>Pendiente...</translation>
    </message>
    <message>
        <source>Succeed</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Contraer</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?
Some of the unfinished files cannot be played properly.</source>
        <translation>¿Seguro que desea detener la conversión?
Algunos de los archivos sin terminar no se podrán reproducir correctamente.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>PlayerScreen</name>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
</context>
<context>
    <name>Profile</name>
    <message>
        <source>User Defined</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>General Video</source>
        <translation>Vídeo general</translation>
    </message>
    <message>
        <source>General Audio</source>
        <translation>Audio general</translation>
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
        <translation>Vídeo HD</translation>
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
        <translation>Teléfono móvil</translation>
    </message>
    <message>
        <source>Picture and Animation</source>
        <translation>Imagen y animación</translation>
    </message>
    <message>
        <source>Portable Multimedia Device</source>
        <translation>Dispositivo multimedia portátil</translation>
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
        <translation>Vídeo HD para Xbox</translation>
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
        <translation>Advanced Streaming Format, un contenedor de Windows Media.</translation>
    </message>
    <message>
        <source>AVI - Audio-Video Interleaved</source>
        <translation>AVI - Audio-Video Interleaved</translation>
    </message>
    <message>
        <source>Audio-Video Interleaved, the classic Windows video format.</source>
        <translation>Audio-Video Interleaved, el formato de vídeo clásico de Windows.</translation>
    </message>
    <message>
        <source>DivX Video</source>
        <translation>Vídeo DivX</translation>
    </message>
    <message>
        <source>DivX video in an AVI container.</source>
        <translation>Vídeo DivX en un contenedor AVI.</translation>
    </message>
    <message>
        <source>DV - Digital Video format</source>
        <translation>DV - Formato de vídeo digital</translation>
    </message>
    <message>
        <source>Digital Video format of camcorders.</source>
        <translation>Formato de vídeo digital de las videocámaras.</translation>
    </message>
    <message>
        <source>DVD Video</source>
        <translation>Vídeo DVD</translation>
    </message>
    <message>
        <source>MPEG-2 video for DVD players.</source>
        <translation>Vídeo MPEG-2 para reproductores de DVD.</translation>
    </message>
    <message>
        <source>MOV - QuickTime</source>
        <translation>MOV - QuickTime</translation>
    </message>
    <message>
        <source>QuickTime movie format.</source>
        <translation>Formato de película QuickTime.</translation>
    </message>
    <message>
        <source>MPEG4 Video</source>
        <translation>Vídeo MPEG4</translation>
    </message>
    <message>
        <source>MPEG-4 video format.</source>
        <translation>Formato de vídeo MPEG-4.</translation>
    </message>
    <message>
        <source>MPEG1 Video</source>
        <translation>Vídeo MPEG1</translation>
    </message>
    <message>
        <source>MPEG-1 video format.</source>
        <translation>Formato de vídeo MPEG-1.</translation>
    </message>
    <message>
        <source>MPEG2 Video</source>
        <translation>Vídeo MPEG2</translation>
    </message>
    <message>
        <source>MPEG-2 video format.</source>
        <translation>Formato de vídeo MPEG-2.</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC Video</source>
        <translation>Vídeo H.264/MPEG-4 AVC</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC video format.</source>
        <translation>Formato de vídeo H.264/MPEG-4 AVC.</translation>
    </message>
    <message>
        <source>RM - Real Video</source>
        <translation>RM - Real Video</translation>
    </message>
    <message>
        <source>RealVideo streaming format.</source>
        <translation>Formato de transmisión en continuo RealVideo.</translation>
    </message>
    <message>
        <source>VCD Video</source>
        <translation>Vídeo VCD</translation>
    </message>
    <message>
        <source>MPEG-1 video for Video CD players.</source>
        <translation>Vídeo MPEG-1 para reproductores de Video CD.</translation>
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
        <translation>Vídeo Xvid</translation>
    </message>
    <message>
        <source>Xvid video in an AVI container.</source>
        <translation>Vídeo Xvid en un contenedor AVI.</translation>
    </message>
    <message>
        <source>Matroska Video</source>
        <translation>Vídeo Matroska</translation>
    </message>
    <message>
        <source>Matroska video format.</source>
        <translation>Formato de vídeo Matroska.</translation>
    </message>
    <message>
        <source>WebM Video</source>
        <translation>Vídeo WebM</translation>
    </message>
    <message>
        <source>WebM video format for the web.</source>
        <translation>Formato de vídeo WebM para la web.</translation>
    </message>
    <message>
        <source>AC3 - Dolby Digital AC-3</source>
        <translation>AC3 - Dolby Digital AC-3</translation>
    </message>
    <message>
        <source>Dolby Digital AC-3 audio format.</source>
        <translation>Formato de audio Dolby Digital AC-3.</translation>
    </message>
    <message>
        <source>AIFF - Audio Interchange File Format</source>
        <translation>AIFF - Audio Interchange File Format</translation>
    </message>
    <message>
        <source>Audio Interchange File Format, uncompressed audio.</source>
        <translation>Audio Interchange File Format, audio sin comprimir.</translation>
    </message>
    <message>
        <source>ALAC - Apple Lossless Audio Codec</source>
        <translation>ALAC - Apple Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Apple Lossless audio format.</source>
        <translation>Formato de audio Apple Lossless.</translation>
    </message>
    <message>
        <source>FLAC - Free Lossless Audio Codec</source>
        <translation>FLAC - Free Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec format.</source>
        <translation>Formato de audio sin pérdida Free Lossless Audio Codec.</translation>
    </message>
    <message>
        <source>SUN AU Format</source>
        <translation>Formato SUN AU</translation>
    </message>
    <message>
        <source>Sun AU audio format.</source>
        <translation>Formato de audio Sun AU.</translation>
    </message>
    <message>
        <source>M4A - MPEG-4 Audio</source>
        <translation>M4A - Audio MPEG-4</translation>
    </message>
    <message>
        <source>MPEG-4 Audio format.</source>
        <translation>Formato de audio MPEG-4.</translation>
    </message>
    <message>
        <source>MP2 - MPEG Layer-2 Audio</source>
        <translation>MP2 - Audio MPEG Layer-2</translation>
    </message>
    <message>
        <source>MPEG Layer-2 audio format.</source>
        <translation>Formato de audio MPEG Layer-2.</translation>
    </message>
    <message>
        <source>MP3 - MPEG Layer-3 Audio</source>
        <translation>MP3 - Audio MPEG Layer-3</translation>
    </message>
    <message>
        <source>MPEG Layer-3 audio format.</source>
        <translation>Formato de audio MPEG Layer-3.</translation>
    </message>
    <message>
        <source>OGG - Ogg Vorbis Audio</source>
        <translation>OGG - Audio Ogg Vorbis</translation>
    </message>
    <message>
        <source>Ogg Vorbis audio format.</source>
        <translation>Formato de audio Ogg Vorbis.</translation>
    </message>
    <message>
        <source>RA - RealAudio</source>
        <translation>RA - RealAudio</translation>
    </message>
    <message>
        <source>RealAudio streaming format.</source>
        <translation>Formato de transmisión en continuo RealAudio.</translation>
    </message>
    <message>
        <source>WAV - Waveform Audio</source>
        <translation>WAV - Waveform Audio</translation>
    </message>
    <message>
        <source>Waveform audio format, uncompressed.</source>
        <translation>Formato de audio Waveform, sin comprimir.</translation>
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
        <translation>Vídeo MPEG4 para Android</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Android</source>
        <translation>Perfil MPEG4 optimizado para Android</translation>
    </message>
    <message>
        <source>Samsung Galaxy S3 H.264 Video</source>
        <translation>Vídeo H.264 para Samsung Galaxy S3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Galaxy S3</source>
        <translation>Perfil H.264/MPEG-4 AVC optimizado para Galaxy S3</translation>
    </message>
    <message>
        <source>Samsung Galaxy Tab MPEG4 Video</source>
        <translation>Vídeo MPEG4 para Samsung Galaxy Tab</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Galaxy Tab</source>
        <translation>Perfil MPEG4 optimizado para Galaxy Tab</translation>
    </message>
    <message>
        <source>Apple TV H.264 Video</source>
        <translation>Vídeo H.264 para Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV</source>
        <translation>Perfil H.264/MPEG-4 AVC optimizado para Apple TV</translation>
    </message>
    <message>
        <source>Apple TV H.264 HD Video</source>
        <translation>Vídeo HD H.264 para Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV HD</source>
        <translation>Perfil H.264/MPEG-4 AVC optimizado para Apple TV HD</translation>
    </message>
    <message>
        <source>Apple TV 3 H.264 1080P Video</source>
        <translation>Vídeo H.264 1080P para Apple TV 3</translation>
    </message>
    <message>
        <source>Apple TV MPEG4 Video</source>
        <translation>Vídeo MPEG4 para Apple TV</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Apple TV</source>
        <translation>Perfil MPEG4 optimizado para Apple TV</translation>
    </message>
    <message>
        <source>HD ASF Video</source>
        <translation>Vídeo HD ASF</translation>
    </message>
    <message>
        <source>ASF profile optimized for HD players</source>
        <translation>Perfil ASF optimizado para reproductores HD</translation>
    </message>
    <message>
        <source>HD AVI Video</source>
        <translation>Vídeo HD AVI</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for HD players</source>
        <translation>Perfil MPEG4 AVI optimizado para reproductores HD</translation>
    </message>
    <message>
        <source>HD H.264/MPEG-4 AVC Video</source>
        <translation>Vídeo HD H.264/MPEG-4 AVC</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for HD players</source>
        <translation>Perfil H.264/MPEG-4 AVC optimizado para reproductores HD</translation>
    </message>
    <message>
        <source>HD Quick Time Video</source>
        <translation>Vídeo HD QuickTime</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for HD players</source>
        <translation>Perfil MPEG4 optimizado para reproductores HD</translation>
    </message>
    <message>
        <source>MPEG2-PS HD Video</source>
        <translation>Vídeo HD MPEG2-PS</translation>
    </message>
    <message>
        <source>MPEG2 profile optimized for HD players</source>
        <translation>Perfil MPEG2 optimizado para reproductores HD</translation>
    </message>
    <message>
        <source>MPEG2-TS HD Video</source>
        <translation>Vídeo HD MPEG2-TS</translation>
    </message>
    <message>
        <source>MPEG4 HD Video</source>
        <translation>Vídeo HD MPEG4</translation>
    </message>
    <message>
        <source>RM HD Video</source>
        <translation>Vídeo HD RM</translation>
    </message>
    <message>
        <source>RealVideo profile optimized for HD players</source>
        <translation>Perfil RealVideo optimizado para reproductores HD</translation>
    </message>
    <message>
        <source>HD WMV Video</source>
        <translation>Vídeo HD WMV</translation>
    </message>
    <message>
        <source>WMV profile optimized for HD players</source>
        <translation>Perfil WMV optimizado para reproductores HD</translation>
    </message>
    <message>
        <source>XVID HD Video</source>
        <translation>Vídeo HD XVID</translation>
    </message>
    <message>
        <source>Xvid profile optimized for HD players</source>
        <translation>Perfil Xvid optimizado para reproductores HD</translation>
    </message>
    <message>
        <source>iPad H.264 Video</source>
        <translation>Vídeo H.264 para iPad</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPad</source>
        <translation>Perfil H.264/MPEG-4 AVC optimizado para iPad</translation>
    </message>
    <message>
        <source>iPad H.264 HD Video</source>
        <translation>Vídeo HD H.264 para iPad</translation>
    </message>
    <message>
        <source>iPad MPEG4 Video</source>
        <translation>Vídeo MPEG4 para iPad</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPad</source>
        <translation>Perfil MPEG4 optimizado para iPad</translation>
    </message>
    <message>
        <source>iPad 2 H.264 Video</source>
        <translation>Vídeo H.264 para iPad 2</translation>
    </message>
    <message>
        <source>iPad 2 H.264 HD Video</source>
        <translation>Vídeo HD H.264 para iPad 2</translation>
    </message>
    <message>
        <source>iPad 2 MPEG4 Video</source>
        <translation>Vídeo MPEG4 para iPad 2</translation>
    </message>
    <message>
        <source>iPad 3 1080P Video</source>
        <translation>Vídeo 1080P para iPad 3</translation>
    </message>
    <message>
        <source>iPad mini H.264 Video</source>
        <translation>Vídeo H.264 para iPad mini</translation>
    </message>
    <message>
        <source>iPhone H.264 Video</source>
        <translation>Vídeo H.264 para iPhone</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPhone</source>
        <translation>Perfil H.264/MPEG-4 AVC optimizado para iPhone</translation>
    </message>
    <message>
        <source>iPhone MPEG4 Video</source>
        <translation>Vídeo MPEG4 para iPhone</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPhone</source>
        <translation>Perfil MPEG4 optimizado para iPhone</translation>
    </message>
    <message>
        <source>iPhone 4 H.264 Video</source>
        <translation>Vídeo H.264 para iPhone 4</translation>
    </message>
    <message>
        <source>iPhone 4 MPEG4 Video</source>
        <translation>Vídeo MPEG4 para iPhone 4</translation>
    </message>
    <message>
        <source>iPhone 5 H.264 Video</source>
        <translation>Vídeo H.264 para iPhone 5</translation>
    </message>
    <message>
        <source>iPod H.264 Video</source>
        <translation>Vídeo H.264 para iPod</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod</source>
        <translation>Perfil H.264/MPEG-4 AVC optimizado para iPod</translation>
    </message>
    <message>
        <source>iPod MPEG4 Video</source>
        <translation>Vídeo MPEG4 para iPod</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod</source>
        <translation>Perfil MPEG4 optimizado para iPod</translation>
    </message>
    <message>
        <source>iPod touch H.264 Video</source>
        <translation>Vídeo H.264 para iPod touch</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod touch</source>
        <translation>Perfil H.264/MPEG-4 AVC optimizado para iPod touch</translation>
    </message>
    <message>
        <source>iPod touch MPEG4 Video</source>
        <translation>Vídeo MPEG4 para iPod touch</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod touch</source>
        <translation>Perfil MPEG4 optimizado para iPod touch</translation>
    </message>
    <message>
        <source>iPod touch 4 H.264 Video</source>
        <translation>Vídeo H.264 para iPod touch 4</translation>
    </message>
    <message>
        <source>iPod touch 4 MPEG4 Video</source>
        <translation>Vídeo MPEG4 para iPod touch 4</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Stereo</source>
        <translation>Vídeo 3GP para teléfono móvil - Estéreo</translation>
    </message>
    <message>
        <source>3GP profile optimized for mobile phones</source>
        <translation>Perfil 3GP optimizado para teléfonos móviles</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Mono</source>
        <translation>Vídeo 3GP para teléfono móvil - Mono</translation>
    </message>
    <message>
        <source>BlackBerry 3GP Video</source>
        <translation>Vídeo 3GP para BlackBerry</translation>
    </message>
    <message>
        <source>BlackBerry AVI Video</source>
        <translation>Vídeo AVI para BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for mobile phones</source>
        <translation>Perfil MPEG4 AVI optimizado para teléfonos móviles</translation>
    </message>
    <message>
        <source>BlackBerry MPEG4 Video</source>
        <translation>Vídeo MPEG4 para BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for mobile phones</source>
        <translation>Perfil MPEG4 optimizado para teléfonos móviles</translation>
    </message>
    <message>
        <source>WMV Video for Mobile Phone</source>
        <translation>Vídeo WMV para teléfono móvil</translation>
    </message>
    <message>
        <source>WMV profile optimized for mobile phones</source>
        <translation>Perfil WMV optimizado para teléfonos móviles</translation>
    </message>
    <message>
        <source>FLV - Flash Video Format</source>
        <translation>FLV - Formato Flash Video</translation>
    </message>
    <message>
        <source>Flash video format for web pages.</source>
        <translation>Formato de vídeo Flash para páginas web.</translation>
    </message>
    <message>
        <source>Picture - BMP format</source>
        <translation>Imagen - Formato BMP</translation>
    </message>
    <message>
        <source>Pictures captured from the video as BMP files.</source>
        <translation>Imágenes capturadas del vídeo como archivos BMP.</translation>
    </message>
    <message>
        <source>Picture - GIF Animation format</source>
        <translation>Imagen - Formato GIF animado</translation>
    </message>
    <message>
        <source>An animated GIF picture made from the video.</source>
        <translation>Una imagen GIF animada creada a partir del vídeo.</translation>
    </message>
    <message>
        <source>Picture - JPEG format</source>
        <translation>Imagen - Formato JPEG</translation>
    </message>
    <message>
        <source>Pictures captured from the video as JPEG files.</source>
        <translation>Imágenes capturadas del vídeo como archivos JPEG.</translation>
    </message>
    <message>
        <source>Picture - PNG format</source>
        <translation>Imagen - Formato PNG</translation>
    </message>
    <message>
        <source>Pictures captured from the video as PNG files.</source>
        <translation>Imágenes capturadas del vídeo como archivos PNG.</translation>
    </message>
    <message>
        <source>SWF - SWF Format</source>
        <translation>SWF - Formato SWF</translation>
    </message>
    <message>
        <source>Shockwave Flash animation format.</source>
        <translation>Formato de animación Shockwave Flash.</translation>
    </message>
    <message>
        <source>Archos MPEG4</source>
        <translation>Archos MPEG4</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for portable players</source>
        <translation>Perfil MPEG4 optimizado para reproductores portátiles</translation>
    </message>
    <message>
        <source>Creative ZEN MPEG4 Video</source>
        <translation>Vídeo MPEG4 para Creative ZEN</translation>
    </message>
    <message>
        <source>iRiver MPEG4 Video</source>
        <translation>Vídeo MPEG4 para iRiver</translation>
    </message>
    <message>
        <source>PS3 H.264 Video</source>
        <translation>Vídeo H.264 para PS3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for PS3</source>
        <translation>Perfil H.264/MPEG-4 AVC optimizado para PS3</translation>
    </message>
    <message>
        <source>PSP MPEG-4 Video</source>
        <translation>Vídeo MPEG-4 para PSP</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for PSP</source>
        <translation>Perfil MPEG4 optimizado para PSP</translation>
    </message>
    <message>
        <source>Xbox360 H.264 Video</source>
        <translation>Vídeo H.264 para Xbox360</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Xbox360</source>
        <translation>Perfil H.264/MPEG-4 AVC optimizado para Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 MPEG4 Video</source>
        <translation>Vídeo MPEG4 para Xbox360</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Xbox360</source>
        <translation>Perfil MPEG4 optimizado para Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 WMV Video</source>
        <translation>Vídeo WMV para Xbox360</translation>
    </message>
    <message>
        <source>WMV profile optimized for Xbox360</source>
        <translation>Perfil WMV optimizado para Xbox360</translation>
    </message>
    <message>
        <source>Zune MPEG4 Video</source>
        <translation>Vídeo MPEG4 para Zune</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Zune</source>
        <translation>Perfil MPEG4 optimizado para Zune</translation>
    </message>
</context>
<context>
    <name>ProfileGroupLoader</name>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
</context>
<context>
    <name>ProfileMenu</name>
    <message>
        <source>Previous group</source>
        <translation>Grupo anterior</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>Grupo siguiente</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>Buscar perfiles</translation>
    </message>
    <message>
        <source>Previous profile</source>
        <translation>Perfil anterior</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Next profile</source>
        <translation>Perfil siguiente</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>Buscar perfil...</translation>
    </message>
</context>
<context>
    <name>QtColorComboBox</name>
    <message>
        <source>More...</source>
        <translation>Más...</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Rojo oscuro</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Verde oscuro</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Azul oscuro</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation>Cian oscuro</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>Magenta oscuro</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>Amarillo oscuro</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Gris oscuro</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Gris claro</translation>
    </message>
    <message>
        <source>User color %1</source>
        <translation>Color propio %1</translation>
    </message>
    <message>
        <source>User Color 99</source>
        <translation>Color propio 99</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>Propiedad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
</context>
<context>
    <name>QxLanguage</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
</context>
<context>
    <name>QxSkin</name>
    <message>
        <source>&amp;Skin</source>
        <translation>&amp;Apariencia</translation>
    </message>
</context>
<context>
    <name>SettingDialog</name>
    <message>
        <source>Advanced Settings</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>Sencillo</translation>
    </message>
    <message>
        <source>Video Size:</source>
        <translation>Tamaño de vídeo:</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>Tamaño de vídeo</translation>
    </message>
    <message>
        <source>Video Quality:</source>
        <translation>Calidad de vídeo:</translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation>Calidad de vídeo</translation>
    </message>
    <message>
        <source>Audio Quality:</source>
        <translation>Calidad de audio:</translation>
    </message>
    <message>
        <source>Audio Quality</source>
        <translation>Calidad de audio</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Apply To All</source>
        <translation>Aplicar a todos</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Picture Format</source>
        <translation>Formato de imagen</translation>
    </message>
    <message>
        <source>Picture format.</source>
        <translation>Formato de archivo de las imágenes capturadas.</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Select how many seconds to capture one picture.</source>
        <translation>Indique cada cuántos segundos se captura una imagen.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Video options</source>
        <translation>Opciones de vídeo</translation>
    </message>
    <message>
        <source>Video Codec</source>
        <translation>Códec de vídeo</translation>
    </message>
    <message>
        <source>Set the video codec (methods of compression for digital videos, e.g., MPEG-4, H.264 or WMV) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>Establece el códec de vídeo (método de compresión del vídeo digital, p. ej., MPEG-4, H.264 o WMV) que utiliza el motor de codificación. Normalmente depende del formato de salida elegido.</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>Tamaño de vídeo</translation>
    </message>
    <message>
        <source>Set frame size. The format is &apos;width x height&apos; like 320x240, 640x480 or 1920x1080 pixels. You can choose an similar size for your playback device screen resolution.</source>
        <translation>Establece el tamaño del fotograma. El formato es «ancho x alto», p. ej., 320x240, 640x480 o 1920x1080 píxeles. Puede elegir un tamaño similar a la resolución de pantalla de su dispositivo de reproducción.</translation>
    </message>
    <message>
        <source>Video Bitrate</source>
        <translation>Bitrate de vídeo</translation>
    </message>
    <message>
        <source>Set the video bit rate in kilobit per second. This is the key factor that is related to the output file size and video quality -- the larger the bit rate, the better the video quality and the bigger the output file you will get, and vice versa.</source>
        <translation>Establece la tasa de bits del vídeo en kilobits por segundo. Es el factor clave del que dependen el tamaño del archivo de salida y la calidad del vídeo: cuanto mayor sea la tasa de bits, mejor será la calidad y más grande el archivo de salida, y viceversa.</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Fotogramas/s</translation>
    </message>
    <message>
        <source>Set how many frames should be displayed per second (FPS). Higher frame rate increases the smoothness when played back, and usually 25--30 frame per second can provide you with a very good viewing experience.</source>
        <translation>Establece cuántos fotogramas se muestran por segundo (FPS). Una velocidad de fotogramas mayor hace más fluida la reproducción; normalmente, entre 25 y 30 fotogramas por segundo ofrecen una muy buena experiencia visual.</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Relación de aspecto</translation>
    </message>
    <message>
        <source>Set width to height ratio according to the screen aspect of your playback device . (4:3, 16:9 or 1.3333, 1.7777).</source>
        <translation>Establece la relación entre ancho y alto según el formato de pantalla de su dispositivo de reproducción (4:3, 16:9 o 1.3333, 1.7777).</translation>
    </message>
    <message>
        <source>Same Quality</source>
        <translation>Misma calidad</translation>
    </message>
    <message>
        <source>This function enables you to get good output video quality as the source. (Sometimes this function may bring you a large output file, or make the converting time pretty long.)</source>
        <translation>Esta función le permite obtener un vídeo de salida con una calidad tan buena como la de la fuente. (A veces puede generar un archivo de salida grande o alargar bastante el tiempo de conversión.)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Select zoom mode, that is how to deal with the blank edge when the aspect of the source and the destination is different.</source>
        <translation>Seleccione el modo de zoom, es decir, cómo tratar los bordes vacíos cuando la proporción de la fuente y la del destino son distintas.</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Audio options</source>
        <translation>Opciones de audio</translation>
    </message>
    <message>
        <source>Audio Codec</source>
        <translation>Códec de audio</translation>
    </message>
    <message>
        <source>Set the audio codec (methods of compression for digital audio, e.g., MP3, PCM or AC3) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>Establece el códec de audio (método de compresión del audio digital, p. ej., MP3, PCM o AC3) que utiliza el motor de codificación. Normalmente depende del formato de salida elegido.</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>Bitrate de audio</translation>
    </message>
    <message>
        <source>Set audio bitrate (in kbit/s)</source>
        <translation>Establece la tasa de bits del audio (en kbit/s)</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Muestreo</translation>
    </message>
    <message>
        <source>Set the audio sampling frequency (the number of samples per second) (default = 44100 Hz).</source>
        <translation>Establece la frecuencia de muestreo del audio, es decir, el número de muestras por segundo (predeterminado = 44100 Hz).</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Set number of audio channels, 1(Mono), 2(Stereo) and 5.1(Dolby Digital) are commonly used for general digital audio.</source>
        <translation>Establece el número de canales de audio; en el audio digital lo habitual es 1 (mono), 2 (estéreo) y 5.1 (Dolby Digital).</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Set the output volume.</source>
        <translation>Establece el volumen de salida.</translation>
    </message>
    <message>
        <source>Disable Audio</source>
        <translation>Desactivar audio</translation>
    </message>
    <message>
        <source>Disable audio</source>
        <translation>Genera la salida sin pista de audio</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Summary of the file</source>
        <translation>Información de resumen del archivo</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Set the title</source>
        <translation>Establece el título</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Set the author</source>
        <translation>Establece el autor</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Set the copyright</source>
        <translation>Establece el aviso de copyright</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Set the comment</source>
        <translation>Establece el comentario</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Género</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>Orig. Artist</source>
        <translation>Artista orig.</translation>
    </message>
    <message>
        <source>Encoded by</source>
        <translation>Codificado por</translation>
    </message>
    <message>
        <source>Url</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>Expert options</source>
        <translation>Opciones avanzadas</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parámetros</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Title_%1</source>
        <translation>Título_%1</translation>
    </message>
    <message>
        <source>Merge %1</source>
        <translation>Unión %1</translation>
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
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Open DVD...</source>
        <translation>Abrir DVD...</translation>
    </message>
    <message>
        <source>Open DVD Folder...</source>
        <translation>Abrir carpeta de DVD...</translation>
    </message>
    <message>
        <source>Open IFO Files...</source>
        <translation>Abrir archivos IFO...</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>Cargar proyecto...</translation>
    </message>
    <message>
        <source>Save Project...</source>
        <translation>Guardar proyecto...</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>Guardar proyecto como...</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>Buscar perfil...</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>Propiedades...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Al principio</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Al final</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Remove Selected Item(s)</source>
        <translation>Quitar elementos seleccionados</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Borrar todo</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>No seleccionar nada</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Invertir selección</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>Marcar todo</translation>
    </message>
    <message>
        <source>Uncheck All</source>
        <translation>Desmarcar todo</translation>
    </message>
    <message>
        <source>Invert Check</source>
        <translation>Invertir marcas</translation>
    </message>
    <message>
        <source>Merge Selected into One</source>
        <translation>Unir selección en uno</translation>
    </message>
    <message>
        <source>Split by Chapter</source>
        <translation>Dividir por capítulos</translation>
    </message>
    <message>
        <source>Add Output Profile...</source>
        <translation>Añadir perfil de salida...</translation>
    </message>
    <message>
        <source>Apply Profile to All</source>
        <translation>Aplicar perfil a todos</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Reproducir/Pausa</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Instantánea</translation>
    </message>
    <message>
        <source>Open Snapshot Folder</source>
        <translation>Abrir carpeta de instantáneas</translation>
    </message>
    <message>
        <source>Change Snapshot Folder</source>
        <translation>Cambiar carpeta de instantáneas</translation>
    </message>
    <message>
        <source>Snapshot Format</source>
        <translation>Formato de instantánea</translation>
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
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation>&amp;Clip</translation>
    </message>
    <message>
        <source>Trim...</source>
        <translation>Cortar...</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>Recortar...</translation>
    </message>
    <message>
        <source>Smart Crop</source>
        <translation>Recorte inteligente</translation>
    </message>
    <message>
        <source>Watermark...</source>
        <translation>Marca de agua...</translation>
    </message>
    <message>
        <source>Effect...</source>
        <translation>Efecto...</translation>
    </message>
    <message>
        <source>Clear All Effects</source>
        <translation>Quitar todos los efectos</translation>
    </message>
    <message>
        <source>Audio Track...</source>
        <translation>Pista de audio...</translation>
    </message>
    <message>
        <source>Subtitle...</source>
        <translation>Subtítulos...</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>Acció&amp;n</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>Convertir elementos marcados</translation>
    </message>
    <message>
        <source>Pause Checked Item(s)</source>
        <translation>Pausar elementos marcados</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>Detener elementos marcados</translation>
    </message>
    <message>
        <source>Open Source File Location</source>
        <translation>Abrir ubicación del archivo de origen</translation>
    </message>
    <message>
        <source>Open Output File Location</source>
        <translation>Abrir ubicación del archivo de salida</translation>
    </message>
    <message>
        <source>Post Task Actions</source>
        <translation>Acciones al finalizar</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>No hacer nada</translation>
    </message>
    <message>
        <source>Exit Program</source>
        <translation>Salir del programa</translation>
    </message>
    <message>
        <source>Shut Down</source>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>Log Off</source>
        <translation>Cerrar sesión</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Hibernar</translation>
    </message>
    <message>
        <source>Stand By</source>
        <translation>Suspender</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferencias...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>&amp;Open DVD</source>
        <translation>A&amp;brir DVD</translation>
    </message>
    <message>
        <source>&amp;Trim</source>
        <translation>&amp;Cortar</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Recortar</translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation>&amp;Efecto</translation>
    </message>
    <message>
        <source>&amp;Merge</source>
        <translation>&amp;Unir</translation>
    </message>
    <message>
        <source>&amp;Preference</source>
        <translation>&amp;Preferencias</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <translation>&amp;Perfil:</translation>
    </message>
    <message>
        <source>Setting...</source>
        <translation>Configuración...</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>&amp;Destination:</source>
        <translation>&amp;Destino:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tareas</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>Progreso total</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Open Files...</source>
        <translation>Abrir archivos...</translation>
    </message>
    <message>
        <source>Open Folder...</source>
        <translation>Abrir carpeta...</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Convert Selected Item(s)</source>
        <translation>Convertir elementos seleccionados</translation>
    </message>
    <message>
        <source>Pause Selected Item(s)</source>
        <translation>Pausar elementos seleccionados</translation>
    </message>
    <message>
        <source>Stop Selected Item(s)</source>
        <translation>Detener elementos seleccionados</translation>
    </message>
    <message>
        <source>Convert All Item(s)</source>
        <translation>Convertir todos los elementos</translation>
    </message>
    <message>
        <source>Pause All Item(s)</source>
        <translation>Pausar todos los elementos</translation>
    </message>
    <message>
        <source>Stop All Item(s)</source>
        <translation>Detener todos los elementos</translation>
    </message>
</context>
<context>
    <name>saveAsDlg</name>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Save As:</source>
        <translation>Guardar como:</translation>
    </message>
</context>
<context>
    <name>splash</name>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. Todos los derechos reservados.</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Versión: %1</translation>
    </message>
</context>
</TS>
