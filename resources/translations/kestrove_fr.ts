<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
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
        <translation>Afficher l&apos;image d&apos;origine</translation>
    </message>
    <message>
        <source>Display Output Frame</source>
        <translation>Afficher l&apos;image de sortie</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Enregistrer sous...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Renommer...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Pour commencer</translation>
    </message>
    <message>
        <source>1. Click &quot;%1 Open DVD %2&quot; to Open DVD.</source>
        <translation>1. Cliquez sur « %1 Ouvrir un DVD %2 » pour ouvrir un DVD.</translation>
    </message>
    <message>
        <source>2. Click &quot;%1 Trim&quot; or &quot;%2 Crop&quot; to edit video file.</source>
        <translation>2. Cliquez sur « %1 Découper » ou « %2 Rogner » pour modifier le fichier vidéo.</translation>
    </message>
    <message>
        <source>3. Select output format from the &quot;Profile&quot; list.</source>
        <translation>3. Choisissez le format de sortie dans la liste « Profil ».</translation>
    </message>
    <message>
        <source>4. Click &quot;%1&quot; to convert.</source>
        <translation>4. Cliquez sur « %1 » pour convertir.</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?</source>
        <translation>Voulez-vous vraiment arrêter la conversion ?</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Niveau inférieur</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Please Select Output Folder</source>
        <translation>Veuillez choisir le dossier de sortie</translation>
    </message>
    <message>
        <source>Please select a DVD drive or a DVD folder.</source>
        <translation>Veuillez choisir un lecteur DVD ou un dossier DVD.</translation>
    </message>
    <message>
        <source>Open IFO Files</source>
        <translation>Ouvrir des fichiers IFO</translation>
    </message>
    <message>
        <source>IFO Files (*.ifo *.IFO)</source>
        <translation>Fichiers IFO (*.ifo *.IFO)</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>The IFO File is invalid.
%1</source>
        <translation>Le fichier IFO n&apos;est pas valide.
%1</translation>
    </message>
    <message>
        <source>Following files can not be loaded(They are not valid media files or their formats are not supported):</source>
        <translation>Impossible de charger les fichiers suivants (ce ne sont pas des fichiers multimédias valides ou leur format n&apos;est pas pris en charge) :</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>Tous les formats pris en charge</translation>
    </message>
    <message>
        <source>Supported Video</source>
        <translation>Vidéo prise en charge</translation>
    </message>
    <message>
        <source>Supported Audio</source>
        <translation>Audio pris en charge</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Select a Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Audio Tracks</source>
        <translation>Pistes audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Sous-titres</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Source file %1 not found!</source>
        <translation>Fichier source %1 introuvable !</translation>
    </message>
    <message>
        <source>Can not save the image.</source>
        <translation>Impossible d&apos;enregistrer l&apos;image.</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>Convertir les éléments cochés</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>Arrêter les éléments cochés</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Elapsed Time: %1 Remaining Time: %2 Progress: </source>
        <translation>Temps écoulé : %1 Temps restant : %2 Progression : </translation>
    </message>
    <message>
        <source>Conversion finished</source>
        <translation>Conversion terminée</translation>
    </message>
    <message>
        <source>Succeeded: %1, failed: %2</source>
        <translation>Réussies : %1, échouées : %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Your profiles could not be saved.
%1</source>
        <translation>Impossible d&apos;enregistrer vos profils.
%1</translation>
    </message>
    <message>
        <source>Are you sure to apply current profile settings to all items?</source>
        <translation>Voulez-vous vraiment appliquer les paramètres du profil actuel à tous les éléments ?</translation>
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
        <translation>Lecture</translation>
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
        <translation>Recommandé</translation>
    </message>
</context>
<context>
    <name>CSearchLineEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>Effacer la recherche</translation>
    </message>
</context>
<context>
    <name>CustomItemWidget</name>
    <message>
        <source>Convert This Item</source>
        <translation>Convertir cet élément</translation>
    </message>
    <message>
        <source>Audio Track</source>
        <translation>Piste audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Sous-titre</translation>
    </message>
    <message>
        <source>Output Name</source>
        <translation>Nom de sortie</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Stop Converting</source>
        <translation>Arrêter la conversion</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Développer</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restant</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kb/s</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Edit Audio</source>
        <translation>Modifier l&apos;audio</translation>
    </message>
    <message>
        <source>Edit Subtitle</source>
        <translation>Modifier les sous-titres</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>En attente...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Pending...</source>
        <translation>En suspens...</translation>
    </message>
    <message>
        <source>Succeed</source>
        <translation>Réussi</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?
Some of the unfinished files cannot be played properly.</source>
        <translation>Voulez-vous vraiment arrêter la conversion ?
Certains fichiers inachevés ne pourront pas être lus correctement.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Reprendre</translation>
    </message>
</context>
<context>
    <name>PlayerScreen</name>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
</context>
<context>
    <name>Profile</name>
    <message>
        <source>User Defined</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>General Video</source>
        <translation>Vidéo générale</translation>
    </message>
    <message>
        <source>General Audio</source>
        <translation>Audio général</translation>
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
        <translation>Vidéo HD</translation>
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
        <translation>Téléphone mobile</translation>
    </message>
    <message>
        <source>Picture and Animation</source>
        <translation>Image et animation</translation>
    </message>
    <message>
        <source>Portable Multimedia Device</source>
        <translation>Appareil multimédia portable</translation>
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
        <translation>Vidéo HD Xbox</translation>
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
        <translation>Advanced Streaming Format, un conteneur Windows Media.</translation>
    </message>
    <message>
        <source>AVI - Audio-Video Interleaved</source>
        <translation>AVI - Audio-Video Interleaved</translation>
    </message>
    <message>
        <source>Audio-Video Interleaved, the classic Windows video format.</source>
        <translation>Audio-Video Interleaved, le format vidéo classique de Windows.</translation>
    </message>
    <message>
        <source>DivX Video</source>
        <translation>Vidéo DivX</translation>
    </message>
    <message>
        <source>DivX video in an AVI container.</source>
        <translation>Vidéo DivX dans un conteneur AVI.</translation>
    </message>
    <message>
        <source>DV - Digital Video format</source>
        <translation>DV - Format vidéo numérique</translation>
    </message>
    <message>
        <source>Digital Video format of camcorders.</source>
        <translation>Format vidéo numérique des caméscopes.</translation>
    </message>
    <message>
        <source>DVD Video</source>
        <translation>Vidéo DVD</translation>
    </message>
    <message>
        <source>MPEG-2 video for DVD players.</source>
        <translation>Vidéo MPEG-2 pour lecteurs DVD.</translation>
    </message>
    <message>
        <source>MOV - QuickTime</source>
        <translation>MOV - QuickTime</translation>
    </message>
    <message>
        <source>QuickTime movie format.</source>
        <translation>Format de film QuickTime.</translation>
    </message>
    <message>
        <source>MPEG4 Video</source>
        <translation>Vidéo MPEG4</translation>
    </message>
    <message>
        <source>MPEG-4 video format.</source>
        <translation>Format vidéo MPEG-4.</translation>
    </message>
    <message>
        <source>MPEG1 Video</source>
        <translation>Vidéo MPEG1</translation>
    </message>
    <message>
        <source>MPEG-1 video format.</source>
        <translation>Format vidéo MPEG-1.</translation>
    </message>
    <message>
        <source>MPEG2 Video</source>
        <translation>Vidéo MPEG2</translation>
    </message>
    <message>
        <source>MPEG-2 video format.</source>
        <translation>Format vidéo MPEG-2.</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC Video</source>
        <translation>Vidéo H.264/MPEG-4 AVC</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC video format.</source>
        <translation>Format vidéo H.264/MPEG-4 AVC.</translation>
    </message>
    <message>
        <source>RM - Real Video</source>
        <translation>RM - Real Video</translation>
    </message>
    <message>
        <source>RealVideo streaming format.</source>
        <translation>Format de diffusion en continu RealVideo.</translation>
    </message>
    <message>
        <source>VCD Video</source>
        <translation>Vidéo VCD</translation>
    </message>
    <message>
        <source>MPEG-1 video for Video CD players.</source>
        <translation>Vidéo MPEG-1 pour lecteurs Vidéo CD.</translation>
    </message>
    <message>
        <source>WMV - Windows Media Video</source>
        <translation>WMV - Windows Media Video</translation>
    </message>
    <message>
        <source>Windows Media Video format.</source>
        <translation>Format Windows Media Video.</translation>
    </message>
    <message>
        <source>Xvid Video</source>
        <translation>Vidéo Xvid</translation>
    </message>
    <message>
        <source>Xvid video in an AVI container.</source>
        <translation>Vidéo Xvid dans un conteneur AVI.</translation>
    </message>
    <message>
        <source>Matroska Video</source>
        <translation>Vidéo Matroska</translation>
    </message>
    <message>
        <source>Matroska video format.</source>
        <translation>Format vidéo Matroska.</translation>
    </message>
    <message>
        <source>WebM Video</source>
        <translation>Vidéo WebM</translation>
    </message>
    <message>
        <source>WebM video format for the web.</source>
        <translation>Format vidéo WebM pour le Web.</translation>
    </message>
    <message>
        <source>AC3 - Dolby Digital AC-3</source>
        <translation>AC3 - Dolby Digital AC-3</translation>
    </message>
    <message>
        <source>Dolby Digital AC-3 audio format.</source>
        <translation>Format audio Dolby Digital AC-3.</translation>
    </message>
    <message>
        <source>AIFF - Audio Interchange File Format</source>
        <translation>AIFF - Audio Interchange File Format</translation>
    </message>
    <message>
        <source>Audio Interchange File Format, uncompressed audio.</source>
        <translation>Audio Interchange File Format, audio non compressé.</translation>
    </message>
    <message>
        <source>ALAC - Apple Lossless Audio Codec</source>
        <translation>ALAC - Apple Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Apple Lossless audio format.</source>
        <translation>Format audio Apple Lossless.</translation>
    </message>
    <message>
        <source>FLAC - Free Lossless Audio Codec</source>
        <translation>FLAC - Free Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec format.</source>
        <translation>Format audio sans perte Free Lossless Audio Codec.</translation>
    </message>
    <message>
        <source>SUN AU Format</source>
        <translation>Format SUN AU</translation>
    </message>
    <message>
        <source>Sun AU audio format.</source>
        <translation>Format audio Sun AU.</translation>
    </message>
    <message>
        <source>M4A - MPEG-4 Audio</source>
        <translation>M4A - Audio MPEG-4</translation>
    </message>
    <message>
        <source>MPEG-4 Audio format.</source>
        <translation>Format audio MPEG-4.</translation>
    </message>
    <message>
        <source>MP2 - MPEG Layer-2 Audio</source>
        <translation>MP2 - Audio MPEG Layer-2</translation>
    </message>
    <message>
        <source>MPEG Layer-2 audio format.</source>
        <translation>Format audio MPEG Layer-2.</translation>
    </message>
    <message>
        <source>MP3 - MPEG Layer-3 Audio</source>
        <translation>MP3 - Audio MPEG Layer-3</translation>
    </message>
    <message>
        <source>MPEG Layer-3 audio format.</source>
        <translation>Format audio MPEG Layer-3.</translation>
    </message>
    <message>
        <source>OGG - Ogg Vorbis Audio</source>
        <translation>OGG - Audio Ogg Vorbis</translation>
    </message>
    <message>
        <source>Ogg Vorbis audio format.</source>
        <translation>Format audio Ogg Vorbis.</translation>
    </message>
    <message>
        <source>RA - RealAudio</source>
        <translation>RA - RealAudio</translation>
    </message>
    <message>
        <source>RealAudio streaming format.</source>
        <translation>Format de diffusion en continu RealAudio.</translation>
    </message>
    <message>
        <source>WAV - Waveform Audio</source>
        <translation>WAV - Waveform Audio</translation>
    </message>
    <message>
        <source>Waveform audio format, uncompressed.</source>
        <translation>Format audio Waveform, non compressé.</translation>
    </message>
    <message>
        <source>WMA - Windows Media Audio</source>
        <translation>WMA - Windows Media Audio</translation>
    </message>
    <message>
        <source>Windows Media Audio format.</source>
        <translation>Format Windows Media Audio.</translation>
    </message>
    <message>
        <source>Android MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour Android</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Android</source>
        <translation>Profil MPEG4 optimisé pour Android</translation>
    </message>
    <message>
        <source>Samsung Galaxy S3 H.264 Video</source>
        <translation>Vidéo H.264 pour Samsung Galaxy S3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Galaxy S3</source>
        <translation>Profil H.264/MPEG-4 AVC optimisé pour Galaxy S3</translation>
    </message>
    <message>
        <source>Samsung Galaxy Tab MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour Samsung Galaxy Tab</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Galaxy Tab</source>
        <translation>Profil MPEG4 optimisé pour Galaxy Tab</translation>
    </message>
    <message>
        <source>Apple TV H.264 Video</source>
        <translation>Vidéo H.264 pour Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV</source>
        <translation>Profil H.264/MPEG-4 AVC optimisé pour Apple TV</translation>
    </message>
    <message>
        <source>Apple TV H.264 HD Video</source>
        <translation>Vidéo HD H.264 pour Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV HD</source>
        <translation>Profil H.264/MPEG-4 AVC optimisé pour Apple TV HD</translation>
    </message>
    <message>
        <source>Apple TV 3 H.264 1080P Video</source>
        <translation>Vidéo H.264 1080P pour Apple TV 3</translation>
    </message>
    <message>
        <source>Apple TV MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour Apple TV</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Apple TV</source>
        <translation>Profil MPEG4 optimisé pour Apple TV</translation>
    </message>
    <message>
        <source>HD ASF Video</source>
        <translation>Vidéo HD ASF</translation>
    </message>
    <message>
        <source>ASF profile optimized for HD players</source>
        <translation>Profil ASF optimisé pour les lecteurs HD</translation>
    </message>
    <message>
        <source>HD AVI Video</source>
        <translation>Vidéo HD AVI</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for HD players</source>
        <translation>Profil MPEG4 AVI optimisé pour les lecteurs HD</translation>
    </message>
    <message>
        <source>HD H.264/MPEG-4 AVC Video</source>
        <translation>Vidéo HD H.264/MPEG-4 AVC</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for HD players</source>
        <translation>Profil H.264/MPEG-4 AVC optimisé pour les lecteurs HD</translation>
    </message>
    <message>
        <source>HD Quick Time Video</source>
        <translation>Vidéo HD QuickTime</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for HD players</source>
        <translation>Profil MPEG4 optimisé pour les lecteurs HD</translation>
    </message>
    <message>
        <source>MPEG2-PS HD Video</source>
        <translation>Vidéo HD MPEG2-PS</translation>
    </message>
    <message>
        <source>MPEG2 profile optimized for HD players</source>
        <translation>Profil MPEG2 optimisé pour les lecteurs HD</translation>
    </message>
    <message>
        <source>MPEG2-TS HD Video</source>
        <translation>Vidéo HD MPEG2-TS</translation>
    </message>
    <message>
        <source>MPEG4 HD Video</source>
        <translation>Vidéo HD MPEG4</translation>
    </message>
    <message>
        <source>RM HD Video</source>
        <translation>Vidéo HD RM</translation>
    </message>
    <message>
        <source>RealVideo profile optimized for HD players</source>
        <translation>Profil RealVideo optimisé pour les lecteurs HD</translation>
    </message>
    <message>
        <source>HD WMV Video</source>
        <translation>Vidéo HD WMV</translation>
    </message>
    <message>
        <source>WMV profile optimized for HD players</source>
        <translation>Profil WMV optimisé pour les lecteurs HD</translation>
    </message>
    <message>
        <source>XVID HD Video</source>
        <translation>Vidéo HD XVID</translation>
    </message>
    <message>
        <source>Xvid profile optimized for HD players</source>
        <translation>Profil Xvid optimisé pour les lecteurs HD</translation>
    </message>
    <message>
        <source>iPad H.264 Video</source>
        <translation>Vidéo H.264 pour iPad</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPad</source>
        <translation>Profil H.264/MPEG-4 AVC optimisé pour iPad</translation>
    </message>
    <message>
        <source>iPad H.264 HD Video</source>
        <translation>Vidéo HD H.264 pour iPad</translation>
    </message>
    <message>
        <source>iPad MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour iPad</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPad</source>
        <translation>Profil MPEG4 optimisé pour iPad</translation>
    </message>
    <message>
        <source>iPad 2 H.264 Video</source>
        <translation>Vidéo H.264 pour iPad 2</translation>
    </message>
    <message>
        <source>iPad 2 H.264 HD Video</source>
        <translation>Vidéo HD H.264 pour iPad 2</translation>
    </message>
    <message>
        <source>iPad 2 MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour iPad 2</translation>
    </message>
    <message>
        <source>iPad 3 1080P Video</source>
        <translation>Vidéo 1080P pour iPad 3</translation>
    </message>
    <message>
        <source>iPad mini H.264 Video</source>
        <translation>Vidéo H.264 pour iPad mini</translation>
    </message>
    <message>
        <source>iPhone H.264 Video</source>
        <translation>Vidéo H.264 pour iPhone</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPhone</source>
        <translation>Profil H.264/MPEG-4 AVC optimisé pour iPhone</translation>
    </message>
    <message>
        <source>iPhone MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour iPhone</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPhone</source>
        <translation>Profil MPEG4 optimisé pour iPhone</translation>
    </message>
    <message>
        <source>iPhone 4 H.264 Video</source>
        <translation>Vidéo H.264 pour iPhone 4</translation>
    </message>
    <message>
        <source>iPhone 4 MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour iPhone 4</translation>
    </message>
    <message>
        <source>iPhone 5 H.264 Video</source>
        <translation>Vidéo H.264 pour iPhone 5</translation>
    </message>
    <message>
        <source>iPod H.264 Video</source>
        <translation>Vidéo H.264 pour iPod</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod</source>
        <translation>Profil H.264/MPEG-4 AVC optimisé pour iPod</translation>
    </message>
    <message>
        <source>iPod MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour iPod</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod</source>
        <translation>Profil MPEG4 optimisé pour iPod</translation>
    </message>
    <message>
        <source>iPod touch H.264 Video</source>
        <translation>Vidéo H.264 pour iPod touch</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod touch</source>
        <translation>Profil H.264/MPEG-4 AVC optimisé pour iPod touch</translation>
    </message>
    <message>
        <source>iPod touch MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour iPod touch</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod touch</source>
        <translation>Profil MPEG4 optimisé pour iPod touch</translation>
    </message>
    <message>
        <source>iPod touch 4 H.264 Video</source>
        <translation>Vidéo H.264 pour iPod touch 4</translation>
    </message>
    <message>
        <source>iPod touch 4 MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour iPod touch 4</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Stereo</source>
        <translation>Vidéo 3GP pour téléphone mobile - Stéréo</translation>
    </message>
    <message>
        <source>3GP profile optimized for mobile phones</source>
        <translation>Profil 3GP optimisé pour les téléphones mobiles</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Mono</source>
        <translation>Vidéo 3GP pour téléphone mobile - Mono</translation>
    </message>
    <message>
        <source>BlackBerry 3GP Video</source>
        <translation>Vidéo 3GP pour BlackBerry</translation>
    </message>
    <message>
        <source>BlackBerry AVI Video</source>
        <translation>Vidéo AVI pour BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for mobile phones</source>
        <translation>Profil MPEG4 AVI optimisé pour les téléphones mobiles</translation>
    </message>
    <message>
        <source>BlackBerry MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for mobile phones</source>
        <translation>Profil MPEG4 optimisé pour les téléphones mobiles</translation>
    </message>
    <message>
        <source>WMV Video for Mobile Phone</source>
        <translation>Vidéo WMV pour téléphone mobile</translation>
    </message>
    <message>
        <source>WMV profile optimized for mobile phones</source>
        <translation>Profil WMV optimisé pour les téléphones mobiles</translation>
    </message>
    <message>
        <source>FLV - Flash Video Format</source>
        <translation>FLV - Format Flash Video</translation>
    </message>
    <message>
        <source>Flash video format for web pages.</source>
        <translation>Format vidéo Flash pour les pages Web.</translation>
    </message>
    <message>
        <source>Picture - BMP format</source>
        <translation>Image - Format BMP</translation>
    </message>
    <message>
        <source>Pictures captured from the video as BMP files.</source>
        <translation>Images capturées dans la vidéo et enregistrées en fichiers BMP.</translation>
    </message>
    <message>
        <source>Picture - GIF Animation format</source>
        <translation>Image - Format GIF animé</translation>
    </message>
    <message>
        <source>An animated GIF picture made from the video.</source>
        <translation>Une image GIF animée créée à partir de la vidéo.</translation>
    </message>
    <message>
        <source>Picture - JPEG format</source>
        <translation>Image - Format JPEG</translation>
    </message>
    <message>
        <source>Pictures captured from the video as JPEG files.</source>
        <translation>Images capturées dans la vidéo et enregistrées en fichiers JPEG.</translation>
    </message>
    <message>
        <source>Picture - PNG format</source>
        <translation>Image - Format PNG</translation>
    </message>
    <message>
        <source>Pictures captured from the video as PNG files.</source>
        <translation>Images capturées dans la vidéo et enregistrées en fichiers PNG.</translation>
    </message>
    <message>
        <source>SWF - SWF Format</source>
        <translation>SWF - Format SWF</translation>
    </message>
    <message>
        <source>Shockwave Flash animation format.</source>
        <translation>Format d&apos;animation Shockwave Flash.</translation>
    </message>
    <message>
        <source>Archos MPEG4</source>
        <translation>Archos MPEG4</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for portable players</source>
        <translation>Profil MPEG4 optimisé pour les lecteurs portables</translation>
    </message>
    <message>
        <source>Creative ZEN MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour Creative ZEN</translation>
    </message>
    <message>
        <source>iRiver MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour iRiver</translation>
    </message>
    <message>
        <source>PS3 H.264 Video</source>
        <translation>Vidéo H.264 pour PS3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for PS3</source>
        <translation>Profil H.264/MPEG-4 AVC optimisé pour PS3</translation>
    </message>
    <message>
        <source>PSP MPEG-4 Video</source>
        <translation>Vidéo MPEG-4 pour PSP</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for PSP</source>
        <translation>Profil MPEG4 optimisé pour PSP</translation>
    </message>
    <message>
        <source>Xbox360 H.264 Video</source>
        <translation>Vidéo H.264 pour Xbox360</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Xbox360</source>
        <translation>Profil H.264/MPEG-4 AVC optimisé pour Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour Xbox360</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Xbox360</source>
        <translation>Profil MPEG4 optimisé pour Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 WMV Video</source>
        <translation>Vidéo WMV pour Xbox360</translation>
    </message>
    <message>
        <source>WMV profile optimized for Xbox360</source>
        <translation>Profil WMV optimisé pour Xbox360</translation>
    </message>
    <message>
        <source>Zune MPEG4 Video</source>
        <translation>Vidéo MPEG4 pour Zune</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Zune</source>
        <translation>Profil MPEG4 optimisé pour Zune</translation>
    </message>
</context>
<context>
    <name>ProfileGroupLoader</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
</context>
<context>
    <name>ProfileMenu</name>
    <message>
        <source>Previous group</source>
        <translation>Groupe précédent</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>Groupe suivant</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>Rechercher des profils</translation>
    </message>
    <message>
        <source>Previous profile</source>
        <translation>Profil précédent</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Next profile</source>
        <translation>Profil suivant</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>Rechercher un profil...</translation>
    </message>
</context>
<context>
    <name>QtColorComboBox</name>
    <message>
        <source>More...</source>
        <translation>Plus...</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Rouge foncé</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Vert foncé</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Bleu foncé</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation>Cyan foncé</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>Magenta foncé</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>Jaune foncé</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Gris foncé</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Gris clair</translation>
    </message>
    <message>
        <source>User color %1</source>
        <translation>Couleur perso %1</translation>
    </message>
    <message>
        <source>User Color 99</source>
        <translation>Couleur perso 99</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
</context>
<context>
    <name>QxLanguage</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
</context>
<context>
    <name>QxSkin</name>
    <message>
        <source>&amp;Skin</source>
        <translation>&amp;Apparence</translation>
    </message>
</context>
<context>
    <name>SettingDialog</name>
    <message>
        <source>Advanced Settings</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>Simple</translation>
    </message>
    <message>
        <source>Video Size:</source>
        <translation>Taille vidéo :</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>Taille vidéo</translation>
    </message>
    <message>
        <source>Video Quality:</source>
        <translation>Qualité vidéo :</translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation>Qualité vidéo</translation>
    </message>
    <message>
        <source>Audio Quality:</source>
        <translation>Qualité audio :</translation>
    </message>
    <message>
        <source>Audio Quality</source>
        <translation>Qualité audio</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Apply To All</source>
        <translation>Appliquer à tous</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Picture Format</source>
        <translation>Format de fichier</translation>
    </message>
    <message>
        <source>Picture format.</source>
        <translation>Format de fichier des images capturées.</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Intervalle</translation>
    </message>
    <message>
        <source>Select how many seconds to capture one picture.</source>
        <translation>Indiquez l&apos;intervalle, en secondes, entre deux images capturées.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Video options</source>
        <translation>Options vidéo</translation>
    </message>
    <message>
        <source>Video Codec</source>
        <translation>Codec vidéo</translation>
    </message>
    <message>
        <source>Set the video codec (methods of compression for digital videos, e.g., MPEG-4, H.264 or WMV) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>Définit le codec vidéo (méthode de compression de la vidéo numérique, par exemple MPEG-4, H.264 ou WMV) utilisé par le moteur d&apos;encodage. Il dépend généralement du format de sortie choisi.</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>Taille de l&apos;image</translation>
    </message>
    <message>
        <source>Set frame size. The format is &apos;width x height&apos; like 320x240, 640x480 or 1920x1080 pixels. You can choose an similar size for your playback device screen resolution.</source>
        <translation>Définit la taille de l&apos;image, au format « largeur x hauteur », par exemple 320x240, 640x480 ou 1920x1080 pixels. Choisissez une taille proche de la résolution de l&apos;écran de votre appareil de lecture.</translation>
    </message>
    <message>
        <source>Video Bitrate</source>
        <translation>Débit vidéo</translation>
    </message>
    <message>
        <source>Set the video bit rate in kilobit per second. This is the key factor that is related to the output file size and video quality -- the larger the bit rate, the better the video quality and the bigger the output file you will get, and vice versa.</source>
        <translation>Définit le débit binaire vidéo en kilobits par seconde. C&apos;est le facteur déterminant pour la taille du fichier de sortie et la qualité vidéo : plus le débit est élevé, meilleure est la qualité et plus le fichier de sortie est volumineux, et inversement.</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Fréquence d&apos;images</translation>
    </message>
    <message>
        <source>Set how many frames should be displayed per second (FPS). Higher frame rate increases the smoothness when played back, and usually 25--30 frame per second can provide you with a very good viewing experience.</source>
        <translation>Définit le nombre d&apos;images affichées par seconde (i/s). Une fréquence d&apos;images plus élevée rend la lecture plus fluide ; en général, 25 à 30 images par seconde offrent déjà un très bon confort de visionnage.</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Format d&apos;image</translation>
    </message>
    <message>
        <source>Set width to height ratio according to the screen aspect of your playback device . (4:3, 16:9 or 1.3333, 1.7777).</source>
        <translation>Définit le rapport largeur/hauteur selon le format de l&apos;écran de votre appareil de lecture (4:3, 16:9 ou 1.3333, 1.7777).</translation>
    </message>
    <message>
        <source>Same Quality</source>
        <translation>Même qualité</translation>
    </message>
    <message>
        <source>This function enables you to get good output video quality as the source. (Sometimes this function may bring you a large output file, or make the converting time pretty long.)</source>
        <translation>Cette fonction permet d&apos;obtenir une vidéo de sortie d&apos;aussi bonne qualité que la source. (Elle peut parfois produire un fichier de sortie volumineux ou allonger nettement la durée de conversion.)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Select zoom mode, that is how to deal with the blank edge when the aspect of the source and the destination is different.</source>
        <translation>Choisissez le mode de zoom, c&apos;est-à-dire le traitement des bandes vides lorsque les proportions de la source et de la destination diffèrent.</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Audio options</source>
        <translation>Options audio</translation>
    </message>
    <message>
        <source>Audio Codec</source>
        <translation>Codec audio</translation>
    </message>
    <message>
        <source>Set the audio codec (methods of compression for digital audio, e.g., MP3, PCM or AC3) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>Définit le codec audio (méthode de compression de l&apos;audio numérique, par exemple MP3, PCM ou AC3) utilisé par le moteur d&apos;encodage. Il dépend généralement du format de sortie choisi.</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>Débit audio</translation>
    </message>
    <message>
        <source>Set audio bitrate (in kbit/s)</source>
        <translation>Définit le débit binaire audio (en kbit/s)</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Échantillonnage</translation>
    </message>
    <message>
        <source>Set the audio sampling frequency (the number of samples per second) (default = 44100 Hz).</source>
        <translation>Définit la fréquence d&apos;échantillonnage audio, c&apos;est-à-dire le nombre d&apos;échantillons par seconde (par défaut : 44100 Hz).</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Set number of audio channels, 1(Mono), 2(Stereo) and 5.1(Dolby Digital) are commonly used for general digital audio.</source>
        <translation>Définit le nombre de canaux audio ; 1 (mono), 2 (stéréo) et 5.1 (Dolby Digital) sont les plus courants en audio numérique.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Set the output volume.</source>
        <translation>Définit le volume de sortie.</translation>
    </message>
    <message>
        <source>Disable Audio</source>
        <translation>Désactiver l&apos;audio</translation>
    </message>
    <message>
        <source>Disable audio</source>
        <translation>Désactive l&apos;audio dans le fichier de sortie</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Summary of the file</source>
        <translation>Informations de résumé du fichier</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Set the title</source>
        <translation>Définit le titre</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Set the author</source>
        <translation>Définit l&apos;auteur</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Set the copyright</source>
        <translation>Définit la mention de copyright</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Set the comment</source>
        <translation>Définit le commentaire</translation>
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
        <translation>Compositeur</translation>
    </message>
    <message>
        <source>Orig. Artist</source>
        <translation>Artiste orig.</translation>
    </message>
    <message>
        <source>Encoded by</source>
        <translation>Encodé par</translation>
    </message>
    <message>
        <source>Url</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>Expert options</source>
        <translation>Options avancées</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Title_%1</source>
        <translation>Titre_%1</translation>
    </message>
    <message>
        <source>Merge %1</source>
        <translation>Fusion %1</translation>
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
        <translation>o</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>ko</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>To</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>Eo</translation>
    </message>
    <message>
        <source>ZB</source>
        <translation>Zo</translation>
    </message>
    <message>
        <source>YB</source>
        <translation>Yo</translation>
    </message>
</context>
<context>
    <name>mainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Open DVD...</source>
        <translation>Ouvrir un DVD...</translation>
    </message>
    <message>
        <source>Open DVD Folder...</source>
        <translation>Ouvrir un dossier DVD...</translation>
    </message>
    <message>
        <source>Open IFO Files...</source>
        <translation>Ouvrir des fichiers IFO...</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>Charger un projet...</translation>
    </message>
    <message>
        <source>Save Project...</source>
        <translation>Enregistrer le projet...</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>Enregistrer le projet sous...</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>Rechercher un profil...</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>Propriétés...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Tout en haut</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Tout en bas</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Remove Selected Item(s)</source>
        <translation>Supprimer les éléments sélectionnés</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Ne rien sélectionner</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Inverser la sélection</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>Tout cocher</translation>
    </message>
    <message>
        <source>Uncheck All</source>
        <translation>Tout décocher</translation>
    </message>
    <message>
        <source>Invert Check</source>
        <translation>Inverser les coches</translation>
    </message>
    <message>
        <source>Merge Selected into One</source>
        <translation>Fusionner la sélection en un seul</translation>
    </message>
    <message>
        <source>Split by Chapter</source>
        <translation>Diviser par chapitre</translation>
    </message>
    <message>
        <source>Add Output Profile...</source>
        <translation>Ajouter un profil de sortie...</translation>
    </message>
    <message>
        <source>Apply Profile to All</source>
        <translation>Appliquer le profil à tous</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Lecture/Pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Instantané</translation>
    </message>
    <message>
        <source>Open Snapshot Folder</source>
        <translation>Ouvrir le dossier des instantanés</translation>
    </message>
    <message>
        <source>Change Snapshot Folder</source>
        <translation>Changer le dossier des instantanés</translation>
    </message>
    <message>
        <source>Snapshot Format</source>
        <translation>Format des instantanés</translation>
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
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation>&amp;Clip</translation>
    </message>
    <message>
        <source>Trim...</source>
        <translation>Découper...</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>Rogner...</translation>
    </message>
    <message>
        <source>Smart Crop</source>
        <translation>Rognage intelligent</translation>
    </message>
    <message>
        <source>Watermark...</source>
        <translation>Filigrane...</translation>
    </message>
    <message>
        <source>Effect...</source>
        <translation>Effet...</translation>
    </message>
    <message>
        <source>Clear All Effects</source>
        <translation>Supprimer tous les effets</translation>
    </message>
    <message>
        <source>Audio Track...</source>
        <translation>Piste audio...</translation>
    </message>
    <message>
        <source>Subtitle...</source>
        <translation>Sous-titres...</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>Ac&amp;tion</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>Convertir les éléments cochés</translation>
    </message>
    <message>
        <source>Pause Checked Item(s)</source>
        <translation>Suspendre les éléments cochés</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>Arrêter les éléments cochés</translation>
    </message>
    <message>
        <source>Open Source File Location</source>
        <translation>Ouvrir l&apos;emplacement du fichier source</translation>
    </message>
    <message>
        <source>Open Output File Location</source>
        <translation>Ouvrir l&apos;emplacement du fichier de sortie</translation>
    </message>
    <message>
        <source>Post Task Actions</source>
        <translation>Actions après la tâche</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Ne rien faire</translation>
    </message>
    <message>
        <source>Exit Program</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>Shut Down</source>
        <translation>Arrêter l&apos;ordinateur</translation>
    </message>
    <message>
        <source>Log Off</source>
        <translation>Fermer la session</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Mettre en veille prolongée</translation>
    </message>
    <message>
        <source>Stand By</source>
        <translation>Mettre en veille</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Redémarrer</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Préférences...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>&amp;Open DVD</source>
        <translation>&amp;Ouvrir un DVD</translation>
    </message>
    <message>
        <source>&amp;Trim</source>
        <translation>&amp;Découper</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Rogner</translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation>&amp;Effet</translation>
    </message>
    <message>
        <source>&amp;Merge</source>
        <translation>&amp;Fusionner</translation>
    </message>
    <message>
        <source>&amp;Preference</source>
        <translation>&amp;Préférences</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <translation>&amp;Profil :</translation>
    </message>
    <message>
        <source>Setting...</source>
        <translation>Paramètres...</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message>
        <source>&amp;Destination:</source>
        <translation>&amp;Destination :</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>Progression totale</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Open Files...</source>
        <translation>Ouvrir des fichiers...</translation>
    </message>
    <message>
        <source>Open Folder...</source>
        <translation>Ouvrir un dossier...</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Plus fort</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Moins fort</translation>
    </message>
    <message>
        <source>Convert Selected Item(s)</source>
        <translation>Convertir les éléments sélectionnés</translation>
    </message>
    <message>
        <source>Pause Selected Item(s)</source>
        <translation>Suspendre les éléments sélectionnés</translation>
    </message>
    <message>
        <source>Stop Selected Item(s)</source>
        <translation>Arrêter les éléments sélectionnés</translation>
    </message>
    <message>
        <source>Convert All Item(s)</source>
        <translation>Convertir tous les éléments</translation>
    </message>
    <message>
        <source>Pause All Item(s)</source>
        <translation>Suspendre tous les éléments</translation>
    </message>
    <message>
        <source>Stop All Item(s)</source>
        <translation>Arrêter tous les éléments</translation>
    </message>
</context>
<context>
    <name>saveAsDlg</name>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Save As:</source>
        <translation>Enregistrer sous :</translation>
    </message>
</context>
<context>
    <name>splash</name>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. Tous droits réservés.</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Version : %1</translation>
    </message>
</context>
</TS>
