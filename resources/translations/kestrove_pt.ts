<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
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
        <translation>Mostrar fotograma de saída</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Guardar como...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Mudar o nome...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Primeiros passos</translation>
    </message>
    <message>
        <source>1. Click &quot;%1 Open DVD %2&quot; to Open DVD.</source>
        <translation>1. Clique em &quot;%1 Abrir DVD %2&quot; para abrir um DVD.</translation>
    </message>
    <message>
        <source>2. Click &quot;%1 Trim&quot; or &quot;%2 Crop&quot; to edit video file.</source>
        <translation>2. Clique em &quot;%1 Cortar&quot; ou &quot;%2 Recortar&quot; para editar o ficheiro de vídeo.</translation>
    </message>
    <message>
        <source>3. Select output format from the &quot;Profile&quot; list.</source>
        <translation>3. Selecione o formato de saída na lista &quot;Perfil&quot;.</translation>
    </message>
    <message>
        <source>4. Click &quot;%1&quot; to convert.</source>
        <translation>4. Clique em &quot;%1&quot; para converter.</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?</source>
        <translation>Tem a certeza de que pretende parar a conversão?</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Restaurar para baixo</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Please Select Output Folder</source>
        <translation>Selecione a pasta de saída</translation>
    </message>
    <message>
        <source>Please select a DVD drive or a DVD folder.</source>
        <translation>Seleccione uma unidade de DVD ou uma pasta de DVD.</translation>
    </message>
    <message>
        <source>Open IFO Files</source>
        <translation>Abrir ficheiros IFO</translation>
    </message>
    <message>
        <source>IFO Files (*.ifo *.IFO)</source>
        <translation>Ficheiros IFO (*.ifo *.IFO)</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>A carregar...</translation>
    </message>
    <message>
        <source>The IFO File is invalid.
%1</source>
        <translation>O ficheiro IFO é inválido.
%1</translation>
    </message>
    <message>
        <source>Following files can not be loaded(They are not valid media files or their formats are not supported):</source>
        <translation>Não é possível carregar os seguintes ficheiros (não são ficheiros multimédia válidos ou o formato não é suportado):</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos os ficheiros</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>Todos os formatos suportados</translation>
    </message>
    <message>
        <source>Supported Video</source>
        <translation>Vídeo suportado</translation>
    </message>
    <message>
        <source>Supported Audio</source>
        <translation>Áudio suportado</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carregar</translation>
    </message>
    <message>
        <source>Select a Folder</source>
        <translation>Seleccione uma pasta</translation>
    </message>
    <message>
        <source>Audio Tracks</source>
        <translation>Faixas de áudio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Legendas</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Source file %1 not found!</source>
        <translation>Arquivo de origem %1 não encontrado!</translation>
    </message>
    <message>
        <source>Can not save the image.</source>
        <translation>Não foi possível salvar a imagem.</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>Converter itens marcados</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>Parar itens marcados</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Elapsed Time: %1 Remaining Time: %2 Progress: </source>
        <translation>Tempo decorrido: %1 Tempo restante: %2 Progresso: </translation>
    </message>
    <message>
        <source>Conversion finished</source>
        <translation>Conversão concluída</translation>
    </message>
    <message>
        <source>Succeeded: %1, failed: %2</source>
        <translation>Concluídas: %1, com falha: %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Your profiles could not be saved.
%1</source>
        <translation>Não foi possível guardar os seus perfis.
%1</translation>
    </message>
    <message>
        <source>Are you sure to apply current profile settings to all items?</source>
        <translation>Tem a certeza de que pretende aplicar as definições do perfil atual a todos os itens?</translation>
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
        <translation>Reproduzir</translation>
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
        <translation>Limpar a pesquisa</translation>
    </message>
</context>
<context>
    <name>CustomItemWidget</name>
    <message>
        <source>Convert This Item</source>
        <translation>Converter este item</translation>
    </message>
    <message>
        <source>Audio Track</source>
        <translation>Faixa de áudio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Legenda</translation>
    </message>
    <message>
        <source>Output Name</source>
        <translation>Nome de saída</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Mover para cima</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Mover para baixo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Stop Converting</source>
        <translation>Parar conversão</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Expandir</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Taxa de bits</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kbps</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Local</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Edit Audio</source>
        <translation>Editar áudio</translation>
    </message>
    <message>
        <source>Edit Subtitle</source>
        <translation>Editar legenda</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Aguardando...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausado</translation>
    </message>
    <message>
        <source>Pending...</source>
        <translation>Pendente...</translation>
    </message>
    <message>
        <source>Succeed</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Recolher</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?
Some of the unfinished files cannot be played properly.</source>
        <translation>Tem certeza de que deseja parar a conversão?
Alguns dos arquivos inacabados não poderão ser reproduzidos corretamente.</translation>
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
        <translation>Vídeo geral</translation>
    </message>
    <message>
        <source>General Audio</source>
        <translation>Áudio geral</translation>
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
        <translation>Telemóvel</translation>
    </message>
    <message>
        <source>Picture and Animation</source>
        <translation>Imagem e animação</translation>
    </message>
    <message>
        <source>Portable Multimedia Device</source>
        <translation>Dispositivo multimédia portátil</translation>
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
        <translation>Advanced Streaming Format, um contentor Windows Media.</translation>
    </message>
    <message>
        <source>AVI - Audio-Video Interleaved</source>
        <translation>AVI - Audio-Video Interleaved</translation>
    </message>
    <message>
        <source>Audio-Video Interleaved, the classic Windows video format.</source>
        <translation>Audio-Video Interleaved, o formato de vídeo clássico do Windows.</translation>
    </message>
    <message>
        <source>DivX Video</source>
        <translation>Vídeo DivX</translation>
    </message>
    <message>
        <source>DivX video in an AVI container.</source>
        <translation>Vídeo DivX num contentor AVI.</translation>
    </message>
    <message>
        <source>DV - Digital Video format</source>
        <translation>DV - Formato de vídeo digital</translation>
    </message>
    <message>
        <source>Digital Video format of camcorders.</source>
        <translation>Formato de vídeo digital das câmaras de vídeo.</translation>
    </message>
    <message>
        <source>DVD Video</source>
        <translation>Vídeo DVD</translation>
    </message>
    <message>
        <source>MPEG-2 video for DVD players.</source>
        <translation>Vídeo MPEG-2 para leitores de DVD.</translation>
    </message>
    <message>
        <source>MOV - QuickTime</source>
        <translation>MOV - QuickTime</translation>
    </message>
    <message>
        <source>QuickTime movie format.</source>
        <translation>Formato de filme QuickTime.</translation>
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
        <translation>Formato de streaming RealVideo.</translation>
    </message>
    <message>
        <source>VCD Video</source>
        <translation>Vídeo VCD</translation>
    </message>
    <message>
        <source>MPEG-1 video for Video CD players.</source>
        <translation>Vídeo MPEG-1 para leitores de Video CD.</translation>
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
        <translation>Vídeo Xvid num contentor AVI.</translation>
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
        <translation>Formato de vídeo WebM para a Web.</translation>
    </message>
    <message>
        <source>AC3 - Dolby Digital AC-3</source>
        <translation>AC3 - Dolby Digital AC-3</translation>
    </message>
    <message>
        <source>Dolby Digital AC-3 audio format.</source>
        <translation>Formato de áudio Dolby Digital AC-3.</translation>
    </message>
    <message>
        <source>AIFF - Audio Interchange File Format</source>
        <translation>AIFF - Audio Interchange File Format</translation>
    </message>
    <message>
        <source>Audio Interchange File Format, uncompressed audio.</source>
        <translation>Audio Interchange File Format, áudio sem compressão.</translation>
    </message>
    <message>
        <source>ALAC - Apple Lossless Audio Codec</source>
        <translation>ALAC - Apple Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Apple Lossless audio format.</source>
        <translation>Formato de áudio Apple Lossless.</translation>
    </message>
    <message>
        <source>FLAC - Free Lossless Audio Codec</source>
        <translation>FLAC - Free Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec format.</source>
        <translation>Formato de áudio sem perdas Free Lossless Audio Codec.</translation>
    </message>
    <message>
        <source>SUN AU Format</source>
        <translation>Formato SUN AU</translation>
    </message>
    <message>
        <source>Sun AU audio format.</source>
        <translation>Formato de áudio Sun AU.</translation>
    </message>
    <message>
        <source>M4A - MPEG-4 Audio</source>
        <translation>M4A - Áudio MPEG-4</translation>
    </message>
    <message>
        <source>MPEG-4 Audio format.</source>
        <translation>Formato de áudio MPEG-4.</translation>
    </message>
    <message>
        <source>MP2 - MPEG Layer-2 Audio</source>
        <translation>MP2 - Áudio MPEG Layer-2</translation>
    </message>
    <message>
        <source>MPEG Layer-2 audio format.</source>
        <translation>Formato de áudio MPEG Layer-2.</translation>
    </message>
    <message>
        <source>MP3 - MPEG Layer-3 Audio</source>
        <translation>MP3 - Áudio MPEG Layer-3</translation>
    </message>
    <message>
        <source>MPEG Layer-3 audio format.</source>
        <translation>Formato de áudio MPEG Layer-3.</translation>
    </message>
    <message>
        <source>OGG - Ogg Vorbis Audio</source>
        <translation>OGG - Áudio Ogg Vorbis</translation>
    </message>
    <message>
        <source>Ogg Vorbis audio format.</source>
        <translation>Formato de áudio Ogg Vorbis.</translation>
    </message>
    <message>
        <source>RA - RealAudio</source>
        <translation>RA - RealAudio</translation>
    </message>
    <message>
        <source>RealAudio streaming format.</source>
        <translation>Formato de streaming RealAudio.</translation>
    </message>
    <message>
        <source>WAV - Waveform Audio</source>
        <translation>WAV - Waveform Audio</translation>
    </message>
    <message>
        <source>Waveform audio format, uncompressed.</source>
        <translation>Formato de áudio Waveform, sem compressão.</translation>
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
        <translation>Perfil MPEG4 otimizado para Android</translation>
    </message>
    <message>
        <source>Samsung Galaxy S3 H.264 Video</source>
        <translation>Vídeo H.264 para Samsung Galaxy S3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Galaxy S3</source>
        <translation>Perfil H.264/MPEG-4 AVC otimizado para Galaxy S3</translation>
    </message>
    <message>
        <source>Samsung Galaxy Tab MPEG4 Video</source>
        <translation>Vídeo MPEG4 para Samsung Galaxy Tab</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Galaxy Tab</source>
        <translation>Perfil MPEG4 otimizado para Galaxy Tab</translation>
    </message>
    <message>
        <source>Apple TV H.264 Video</source>
        <translation>Vídeo H.264 para Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV</source>
        <translation>Perfil H.264/MPEG-4 AVC otimizado para Apple TV</translation>
    </message>
    <message>
        <source>Apple TV H.264 HD Video</source>
        <translation>Vídeo HD H.264 para Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV HD</source>
        <translation>Perfil H.264/MPEG-4 AVC otimizado para Apple TV HD</translation>
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
        <translation>Perfil MPEG4 otimizado para Apple TV</translation>
    </message>
    <message>
        <source>HD ASF Video</source>
        <translation>Vídeo HD ASF</translation>
    </message>
    <message>
        <source>ASF profile optimized for HD players</source>
        <translation>Perfil ASF otimizado para leitores HD</translation>
    </message>
    <message>
        <source>HD AVI Video</source>
        <translation>Vídeo HD AVI</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for HD players</source>
        <translation>Perfil MPEG4 AVI otimizado para leitores HD</translation>
    </message>
    <message>
        <source>HD H.264/MPEG-4 AVC Video</source>
        <translation>Vídeo HD H.264/MPEG-4 AVC</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for HD players</source>
        <translation>Perfil H.264/MPEG-4 AVC otimizado para leitores HD</translation>
    </message>
    <message>
        <source>HD Quick Time Video</source>
        <translation>Vídeo HD QuickTime</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for HD players</source>
        <translation>Perfil MPEG4 otimizado para leitores HD</translation>
    </message>
    <message>
        <source>MPEG2-PS HD Video</source>
        <translation>Vídeo HD MPEG2-PS</translation>
    </message>
    <message>
        <source>MPEG2 profile optimized for HD players</source>
        <translation>Perfil MPEG2 otimizado para leitores HD</translation>
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
        <translation>Perfil RealVideo otimizado para leitores HD</translation>
    </message>
    <message>
        <source>HD WMV Video</source>
        <translation>Vídeo HD WMV</translation>
    </message>
    <message>
        <source>WMV profile optimized for HD players</source>
        <translation>Perfil WMV otimizado para leitores HD</translation>
    </message>
    <message>
        <source>XVID HD Video</source>
        <translation>Vídeo HD XVID</translation>
    </message>
    <message>
        <source>Xvid profile optimized for HD players</source>
        <translation>Perfil Xvid otimizado para leitores HD</translation>
    </message>
    <message>
        <source>iPad H.264 Video</source>
        <translation>Vídeo H.264 para iPad</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPad</source>
        <translation>Perfil H.264/MPEG-4 AVC otimizado para iPad</translation>
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
        <translation>Perfil MPEG4 otimizado para iPad</translation>
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
        <translation>Perfil H.264/MPEG-4 AVC otimizado para iPhone</translation>
    </message>
    <message>
        <source>iPhone MPEG4 Video</source>
        <translation>Vídeo MPEG4 para iPhone</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPhone</source>
        <translation>Perfil MPEG4 otimizado para iPhone</translation>
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
        <translation>Perfil H.264/MPEG-4 AVC otimizado para iPod</translation>
    </message>
    <message>
        <source>iPod MPEG4 Video</source>
        <translation>Vídeo MPEG4 para iPod</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod</source>
        <translation>Perfil MPEG4 otimizado para iPod</translation>
    </message>
    <message>
        <source>iPod touch H.264 Video</source>
        <translation>Vídeo H.264 para iPod touch</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod touch</source>
        <translation>Perfil H.264/MPEG-4 AVC otimizado para iPod touch</translation>
    </message>
    <message>
        <source>iPod touch MPEG4 Video</source>
        <translation>Vídeo MPEG4 para iPod touch</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod touch</source>
        <translation>Perfil MPEG4 otimizado para iPod touch</translation>
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
        <translation>Vídeo 3GP para telemóvel - Estéreo</translation>
    </message>
    <message>
        <source>3GP profile optimized for mobile phones</source>
        <translation>Perfil 3GP otimizado para telemóveis</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Mono</source>
        <translation>Vídeo 3GP para telemóvel - Mono</translation>
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
        <translation>Perfil MPEG4 AVI otimizado para telemóveis</translation>
    </message>
    <message>
        <source>BlackBerry MPEG4 Video</source>
        <translation>Vídeo MPEG4 para BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for mobile phones</source>
        <translation>Perfil MPEG4 otimizado para telemóveis</translation>
    </message>
    <message>
        <source>WMV Video for Mobile Phone</source>
        <translation>Vídeo WMV para telemóvel</translation>
    </message>
    <message>
        <source>WMV profile optimized for mobile phones</source>
        <translation>Perfil WMV otimizado para telemóveis</translation>
    </message>
    <message>
        <source>FLV - Flash Video Format</source>
        <translation>FLV - Formato Flash Video</translation>
    </message>
    <message>
        <source>Flash video format for web pages.</source>
        <translation>Formato de vídeo Flash para páginas Web.</translation>
    </message>
    <message>
        <source>Picture - BMP format</source>
        <translation>Imagem - Formato BMP</translation>
    </message>
    <message>
        <source>Pictures captured from the video as BMP files.</source>
        <translation>Imagens capturadas do vídeo como ficheiros BMP.</translation>
    </message>
    <message>
        <source>Picture - GIF Animation format</source>
        <translation>Imagem - Formato GIF animado</translation>
    </message>
    <message>
        <source>An animated GIF picture made from the video.</source>
        <translation>Uma imagem GIF animada criada a partir do vídeo.</translation>
    </message>
    <message>
        <source>Picture - JPEG format</source>
        <translation>Imagem - Formato JPEG</translation>
    </message>
    <message>
        <source>Pictures captured from the video as JPEG files.</source>
        <translation>Imagens capturadas do vídeo como ficheiros JPEG.</translation>
    </message>
    <message>
        <source>Picture - PNG format</source>
        <translation>Imagem - Formato PNG</translation>
    </message>
    <message>
        <source>Pictures captured from the video as PNG files.</source>
        <translation>Imagens capturadas do vídeo como ficheiros PNG.</translation>
    </message>
    <message>
        <source>SWF - SWF Format</source>
        <translation>SWF - Formato SWF</translation>
    </message>
    <message>
        <source>Shockwave Flash animation format.</source>
        <translation>Formato de animação Shockwave Flash.</translation>
    </message>
    <message>
        <source>Archos MPEG4</source>
        <translation>Archos MPEG4</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for portable players</source>
        <translation>Perfil MPEG4 otimizado para leitores portáteis</translation>
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
        <translation>Perfil H.264/MPEG-4 AVC otimizado para PS3</translation>
    </message>
    <message>
        <source>PSP MPEG-4 Video</source>
        <translation>Vídeo MPEG-4 para PSP</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for PSP</source>
        <translation>Perfil MPEG4 otimizado para PSP</translation>
    </message>
    <message>
        <source>Xbox360 H.264 Video</source>
        <translation>Vídeo H.264 para Xbox360</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Xbox360</source>
        <translation>Perfil H.264/MPEG-4 AVC otimizado para Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 MPEG4 Video</source>
        <translation>Vídeo MPEG4 para Xbox360</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Xbox360</source>
        <translation>Perfil MPEG4 otimizado para Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 WMV Video</source>
        <translation>Vídeo WMV para Xbox360</translation>
    </message>
    <message>
        <source>WMV profile optimized for Xbox360</source>
        <translation>Perfil WMV otimizado para Xbox360</translation>
    </message>
    <message>
        <source>Zune MPEG4 Video</source>
        <translation>Vídeo MPEG4 para Zune</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Zune</source>
        <translation>Perfil MPEG4 otimizado para Zune</translation>
    </message>
</context>
<context>
    <name>ProfileGroupLoader</name>
    <message>
        <source>Untitled</source>
        <translation>Sem título</translation>
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
        <translation>Grupo seguinte</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>Pesquisar perfis</translation>
    </message>
    <message>
        <source>Previous profile</source>
        <translation>Perfil anterior</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfis</translation>
    </message>
    <message>
        <source>Next profile</source>
        <translation>Perfil seguinte</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>Pesquisar perfil...</translation>
    </message>
</context>
<context>
    <name>QtColorComboBox</name>
    <message>
        <source>More...</source>
        <translation>Mais...</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Preto</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Branco</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Vermelho</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Vermelho escuro</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Verde escuro</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Azul escuro</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation>Ciano escuro</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>Magenta escuro</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarelo</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>Amarelo escuro</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Cinzento</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Cinzento escuro</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Cinzento claro</translation>
    </message>
    <message>
        <source>User color %1</source>
        <translation>Cor do utilizador %1</translation>
    </message>
    <message>
        <source>User Color 99</source>
        <translation>Cor do utilizador 99</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>Propriedade</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
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
        <translation>&amp;Aparência</translation>
    </message>
</context>
<context>
    <name>SettingDialog</name>
    <message>
        <source>Advanced Settings</source>
        <translation>Definições avançadas</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>Simples</translation>
    </message>
    <message>
        <source>Video Size:</source>
        <translation>Tamanho do vídeo:</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>Tamanho do vídeo</translation>
    </message>
    <message>
        <source>Video Quality:</source>
        <translation>Qualidade do vídeo:</translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation>Qualidade do vídeo</translation>
    </message>
    <message>
        <source>Audio Quality:</source>
        <translation>Qualidade do áudio:</translation>
    </message>
    <message>
        <source>Audio Quality</source>
        <translation>Qualidade do áudio</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
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
        <translation>Geral</translation>
    </message>
    <message>
        <source>Picture Format</source>
        <translation>Formato de imagem</translation>
    </message>
    <message>
        <source>Picture format.</source>
        <translation>Formato de ficheiro das imagens capturadas.</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Select how many seconds to capture one picture.</source>
        <translation>Indique de quantos em quantos segundos é capturada uma imagem.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Video options</source>
        <translation>Opções de vídeo</translation>
    </message>
    <message>
        <source>Video Codec</source>
        <translation>Codec de vídeo</translation>
    </message>
    <message>
        <source>Set the video codec (methods of compression for digital videos, e.g., MPEG-4, H.264 or WMV) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>Define o codec de vídeo (método de compressão do vídeo digital, p. ex., MPEG-4, H.264 ou WMV) utilizado pelo motor de codificação. Normalmente depende do formato de saída escolhido.</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>Tamanho do vídeo</translation>
    </message>
    <message>
        <source>Set frame size. The format is &apos;width x height&apos; like 320x240, 640x480 or 1920x1080 pixels. You can choose an similar size for your playback device screen resolution.</source>
        <translation>Define o tamanho da imagem. O formato é «largura x altura», p. ex., 320x240, 640x480 ou 1920x1080 píxeis. Pode escolher um tamanho semelhante à resolução do ecrã do seu dispositivo de reprodução.</translation>
    </message>
    <message>
        <source>Video Bitrate</source>
        <translation>Bitrate de vídeo</translation>
    </message>
    <message>
        <source>Set the video bit rate in kilobit per second. This is the key factor that is related to the output file size and video quality -- the larger the bit rate, the better the video quality and the bigger the output file you will get, and vice versa.</source>
        <translation>Define a taxa de bits do vídeo em kilobits por segundo. É o fator determinante para o tamanho do ficheiro de saída e a qualidade do vídeo: quanto maior a taxa de bits, melhor a qualidade do vídeo e maior o ficheiro de saída, e vice-versa.</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Fotogramas/s</translation>
    </message>
    <message>
        <source>Set how many frames should be displayed per second (FPS). Higher frame rate increases the smoothness when played back, and usually 25--30 frame per second can provide you with a very good viewing experience.</source>
        <translation>Define quantos fotogramas são apresentados por segundo (FPS). Uma taxa de fotogramas mais elevada torna a reprodução mais fluida; normalmente, 25 a 30 fotogramas por segundo proporcionam uma ótima experiência de visualização.</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Proporção</translation>
    </message>
    <message>
        <source>Set width to height ratio according to the screen aspect of your playback device . (4:3, 16:9 or 1.3333, 1.7777).</source>
        <translation>Define a relação entre a largura e a altura de acordo com o formato do ecrã do seu dispositivo de reprodução (4:3, 16:9 ou 1.3333, 1.7777).</translation>
    </message>
    <message>
        <source>Same Quality</source>
        <translation>Mesma qualidade</translation>
    </message>
    <message>
        <source>This function enables you to get good output video quality as the source. (Sometimes this function may bring you a large output file, or make the converting time pretty long.)</source>
        <translation>Esta função permite obter um vídeo de saída com uma qualidade tão boa como a da origem. (Por vezes, pode gerar um ficheiro de saída grande ou tornar a conversão bastante demorada.)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Select zoom mode, that is how to deal with the blank edge when the aspect of the source and the destination is different.</source>
        <translation>Selecione o modo de zoom, ou seja, como tratar as margens vazias quando as proporções da origem e do destino são diferentes.</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Audio options</source>
        <translation>Opções de áudio</translation>
    </message>
    <message>
        <source>Audio Codec</source>
        <translation>Codec de áudio</translation>
    </message>
    <message>
        <source>Set the audio codec (methods of compression for digital audio, e.g., MP3, PCM or AC3) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>Define o codec de áudio (método de compressão do áudio digital, p. ex., MP3, PCM ou AC3) utilizado pelo motor de codificação. Normalmente depende do formato de saída escolhido.</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>Bitrate de áudio</translation>
    </message>
    <message>
        <source>Set audio bitrate (in kbit/s)</source>
        <translation>Define a taxa de bits do áudio (em kbit/s)</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Amostragem</translation>
    </message>
    <message>
        <source>Set the audio sampling frequency (the number of samples per second) (default = 44100 Hz).</source>
        <translation>Define a frequência de amostragem do áudio, ou seja, o número de amostras por segundo (predefinição = 44100 Hz).</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>Set number of audio channels, 1(Mono), 2(Stereo) and 5.1(Dolby Digital) are commonly used for general digital audio.</source>
        <translation>Define o número de canais de áudio; no áudio digital, os mais usados são 1 (mono), 2 (estéreo) e 5.1 (Dolby Digital).</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Set the output volume.</source>
        <translation>Define o volume de saída.</translation>
    </message>
    <message>
        <source>Disable Audio</source>
        <translation>Desativar áudio</translation>
    </message>
    <message>
        <source>Disable audio</source>
        <translation>Gera a saída sem faixa de áudio</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Summary of the file</source>
        <translation>Informações de resumo do ficheiro</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Set the title</source>
        <translation>Define o título</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Set the author</source>
        <translation>Define o autor</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Set the copyright</source>
        <translation>Define os direitos de autor</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentários</translation>
    </message>
    <message>
        <source>Set the comment</source>
        <translation>Define o comentário</translation>
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
        <translation>Ano</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>Expert options</source>
        <translation>Opções avançadas</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parâmetros</translation>
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
        <translation>Junção %1</translation>
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
        <translation>&amp;Ficheiro</translation>
    </message>
    <message>
        <source>Open DVD...</source>
        <translation>Abrir DVD...</translation>
    </message>
    <message>
        <source>Open DVD Folder...</source>
        <translation>Abrir pasta de DVD...</translation>
    </message>
    <message>
        <source>Open IFO Files...</source>
        <translation>Abrir ficheiros IFO...</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>Carregar projeto...</translation>
    </message>
    <message>
        <source>Save Project...</source>
        <translation>Guardar projeto...</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>Guardar projeto como...</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>Pesquisar perfil...</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>Propriedades...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Mudar o nome</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Mover para cima</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Mover para baixo</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Para o topo</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Para o fundo</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Remove Selected Item(s)</source>
        <translation>Remover itens selecionados</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Limpar tudo</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Não selecionar nada</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Inverter seleção</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>Marcar tudo</translation>
    </message>
    <message>
        <source>Uncheck All</source>
        <translation>Desmarcar tudo</translation>
    </message>
    <message>
        <source>Invert Check</source>
        <translation>Inverter marcação</translation>
    </message>
    <message>
        <source>Merge Selected into One</source>
        <translation>Juntar seleção num só</translation>
    </message>
    <message>
        <source>Split by Chapter</source>
        <translation>Dividir por capítulo</translation>
    </message>
    <message>
        <source>Add Output Profile...</source>
        <translation>Adicionar perfil de saída...</translation>
    </message>
    <message>
        <source>Apply Profile to All</source>
        <translation>Aplicar perfil a todos</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproduzir</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Reproduzir/Pausa</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Instantâneo</translation>
    </message>
    <message>
        <source>Open Snapshot Folder</source>
        <translation>Abrir pasta de instantâneos</translation>
    </message>
    <message>
        <source>Change Snapshot Folder</source>
        <translation>Alterar pasta de instantâneos</translation>
    </message>
    <message>
        <source>Snapshot Format</source>
        <translation>Formato de instantâneo</translation>
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
        <translation>Ecrã inteiro</translation>
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
        <translation>Marca de água...</translation>
    </message>
    <message>
        <source>Effect...</source>
        <translation>Efeito...</translation>
    </message>
    <message>
        <source>Clear All Effects</source>
        <translation>Remover todos os efeitos</translation>
    </message>
    <message>
        <source>Audio Track...</source>
        <translation>Faixa de áudio...</translation>
    </message>
    <message>
        <source>Subtitle...</source>
        <translation>Legendas...</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>&amp;Ação</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>Converter itens marcados</translation>
    </message>
    <message>
        <source>Pause Checked Item(s)</source>
        <translation>Pausar itens marcados</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>Parar itens marcados</translation>
    </message>
    <message>
        <source>Open Source File Location</source>
        <translation>Abrir localização do ficheiro de origem</translation>
    </message>
    <message>
        <source>Open Output File Location</source>
        <translation>Abrir localização do ficheiro de saída</translation>
    </message>
    <message>
        <source>Post Task Actions</source>
        <translation>Ações após a tarefa</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Não fazer nada</translation>
    </message>
    <message>
        <source>Exit Program</source>
        <translation>Sair do programa</translation>
    </message>
    <message>
        <source>Shut Down</source>
        <translation>Encerrar</translation>
    </message>
    <message>
        <source>Log Off</source>
        <translation>Terminar sessão</translation>
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
        <translation>&amp;Opções</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferências...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
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
        <translation>Fechar</translation>
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
        <translation>&amp;Efeito</translation>
    </message>
    <message>
        <source>&amp;Merge</source>
        <translation>&amp;Juntar</translation>
    </message>
    <message>
        <source>&amp;Preference</source>
        <translation>Pre&amp;ferências</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
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
        <translation>Definições...</translation>
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
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tarefas</translation>
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
        <translation>Progresso total</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Open Files...</source>
        <translation>Abrir ficheiros...</translation>
    </message>
    <message>
        <source>Open Folder...</source>
        <translation>Abrir pasta...</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Aumentar</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Diminuir</translation>
    </message>
    <message>
        <source>Convert Selected Item(s)</source>
        <translation>Converter itens selecionados</translation>
    </message>
    <message>
        <source>Pause Selected Item(s)</source>
        <translation>Pausar itens selecionados</translation>
    </message>
    <message>
        <source>Stop Selected Item(s)</source>
        <translation>Parar itens selecionados</translation>
    </message>
    <message>
        <source>Convert All Item(s)</source>
        <translation>Converter todos os itens</translation>
    </message>
    <message>
        <source>Pause All Item(s)</source>
        <translation>Pausar todos os itens</translation>
    </message>
    <message>
        <source>Stop All Item(s)</source>
        <translation>Parar todos os itens</translation>
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
        <translation>Fechar</translation>
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
        <translation>© %1 %2. Todos os direitos reservados.</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Versão: %1</translation>
    </message>
</context>
</TS>
