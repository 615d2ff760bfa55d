<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
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
        <translation>显示原始画面</translation>
    </message>
    <message>
        <source>Display Output Frame</source>
        <translation>显示输出画面</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>另存为(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>重命名(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>快速入门</translation>
    </message>
    <message>
        <source>1. Click &quot;%1 Open DVD %2&quot; to Open DVD.</source>
        <translation>1. 单击“%1 打开 DVD %2”打开 DVD。</translation>
    </message>
    <message>
        <source>2. Click &quot;%1 Trim&quot; or &quot;%2 Crop&quot; to edit video file.</source>
        <translation>2. 单击“%1 剪切”或“%2 裁剪”编辑视频文件。</translation>
    </message>
    <message>
        <source>3. Select output format from the &quot;Profile&quot; list.</source>
        <translation>3. 从“配置文件”列表中选择输出格式。</translation>
    </message>
    <message>
        <source>4. Click &quot;%1&quot; to convert.</source>
        <translation>4. 单击“%1”开始转换。</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?</source>
        <translation>确定要停止转换吗？</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>向下还原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Please Select Output Folder</source>
        <translation>请选择输出文件夹</translation>
    </message>
    <message>
        <source>Please select a DVD drive or a DVD folder.</source>
        <translation>请选择 DVD 驱动器或 DVD 文件夹。</translation>
    </message>
    <message>
        <source>Open IFO Files</source>
        <translation>打开 IFO 文件</translation>
    </message>
    <message>
        <source>IFO Files (*.ifo *.IFO)</source>
        <translation>IFO 文件 (*.ifo *.IFO)</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>The IFO File is invalid.
%1</source>
        <translation>IFO 文件无效。
%1</translation>
    </message>
    <message>
        <source>Following files can not be loaded(They are not valid media files or their formats are not supported):</source>
        <translation>无法加载以下文件（不是有效的媒体文件或格式不受支持）：</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>所有支持的格式</translation>
    </message>
    <message>
        <source>Supported Video</source>
        <translation>支持的视频</translation>
    </message>
    <message>
        <source>Supported Audio</source>
        <translation>支持的音频</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Select a Folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Audio Tracks</source>
        <translation>音轨</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Source file %1 not found!</source>
        <translation>找不到源文件 %1！</translation>
    </message>
    <message>
        <source>Can not save the image.</source>
        <translation>无法保存图像。</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>转换勾选的项目</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>停止勾选的项目</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Elapsed Time: %1 Remaining Time: %2 Progress: </source>
        <translation>已用时间: %1 剩余时间: %2 进度: </translation>
    </message>
    <message>
        <source>Conversion finished</source>
        <translation>转换完成</translation>
    </message>
    <message>
        <source>Succeeded: %1, failed: %2</source>
        <translation>成功: %1，失败: %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Your profiles could not be saved.
%1</source>
        <translation>无法保存您的配置文件。
%1</translation>
    </message>
    <message>
        <source>Are you sure to apply current profile settings to all items?</source>
        <translation>确定要将当前配置文件的设置应用到所有项目吗？</translation>
    </message>
</context>
<context>
    <name>CPlayPauseButton</name>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
</context>
<context>
    <name>CProfileCombo</name>
    <message>
        <source>Profile</source>
        <translation>配置文件</translation>
    </message>
</context>
<context>
    <name>CProfileMenu</name>
    <message>
        <source>Recommended</source>
        <translation>推荐</translation>
    </message>
</context>
<context>
    <name>CSearchLineEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>清除搜索</translation>
    </message>
</context>
<context>
    <name>CustomItemWidget</name>
    <message>
        <source>Convert This Item</source>
        <translation>转换此项</translation>
    </message>
    <message>
        <source>Audio Track</source>
        <translation>音轨</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Output Name</source>
        <translation>输出名称</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Stop Converting</source>
        <translation>停止转换</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>展开</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>剩余时间</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>节目</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>比特率</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kbps</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Edit Audio</source>
        <translation>编辑音频</translation>
    </message>
    <message>
        <source>Edit Subtitle</source>
        <translation>编辑字幕</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>等待中...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Pending...</source>
        <translation>挂起...</translation>
    </message>
    <message>
        <source>Succeed</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?
Some of the unfinished files cannot be played properly.</source>
        <translation>确定要停止转换吗？
部分未完成的文件将无法正常播放。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>PlayerScreen</name>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
</context>
<context>
    <name>Profile</name>
    <message>
        <source>User Defined</source>
        <translation>用户自定义</translation>
    </message>
    <message>
        <source>General Video</source>
        <translation>常用视频</translation>
    </message>
    <message>
        <source>General Audio</source>
        <translation>常用音频</translation>
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
        <translation>高清视频</translation>
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
        <translation>手机</translation>
    </message>
    <message>
        <source>Picture and Animation</source>
        <translation>图片和动画</translation>
    </message>
    <message>
        <source>Portable Multimedia Device</source>
        <translation>便携式多媒体设备</translation>
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
        <translation>Xbox 高清视频</translation>
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
        <translation>Advanced Streaming Format，一种 Windows Media 容器格式。</translation>
    </message>
    <message>
        <source>AVI - Audio-Video Interleaved</source>
        <translation>AVI - Audio-Video Interleaved</translation>
    </message>
    <message>
        <source>Audio-Video Interleaved, the classic Windows video format.</source>
        <translation>Audio-Video Interleaved，经典的 Windows 视频格式。</translation>
    </message>
    <message>
        <source>DivX Video</source>
        <translation>DivX 视频</translation>
    </message>
    <message>
        <source>DivX video in an AVI container.</source>
        <translation>封装在 AVI 容器中的 DivX 视频。</translation>
    </message>
    <message>
        <source>DV - Digital Video format</source>
        <translation>DV - 数字视频格式</translation>
    </message>
    <message>
        <source>Digital Video format of camcorders.</source>
        <translation>摄像机使用的数字视频格式。</translation>
    </message>
    <message>
        <source>DVD Video</source>
        <translation>DVD 视频</translation>
    </message>
    <message>
        <source>MPEG-2 video for DVD players.</source>
        <translation>适用于 DVD 播放机的 MPEG-2 视频。</translation>
    </message>
    <message>
        <source>MOV - QuickTime</source>
        <translation>MOV - QuickTime</translation>
    </message>
    <message>
        <source>QuickTime movie format.</source>
        <translation>QuickTime 影片格式。</translation>
    </message>
    <message>
        <source>MPEG4 Video</source>
        <translation>MPEG4 视频</translation>
    </message>
    <message>
        <source>MPEG-4 video format.</source>
        <translation>MPEG-4 视频格式。</translation>
    </message>
    <message>
        <source>MPEG1 Video</source>
        <translation>MPEG1 视频</translation>
    </message>
    <message>
        <source>MPEG-1 video format.</source>
        <translation>MPEG-1 视频格式。</translation>
    </message>
    <message>
        <source>MPEG2 Video</source>
        <translation>MPEG2 视频</translation>
    </message>
    <message>
        <source>MPEG-2 video format.</source>
        <translation>MPEG-2 视频格式。</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC Video</source>
        <translation>H.264/MPEG-4 AVC 视频</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC video format.</source>
        <translation>H.264/MPEG-4 AVC 视频格式。</translation>
    </message>
    <message>
        <source>RM - Real Video</source>
        <translation>RM - Real Video</translation>
    </message>
    <message>
        <source>RealVideo streaming format.</source>
        <translation>RealVideo 流媒体格式。</translation>
    </message>
    <message>
        <source>VCD Video</source>
        <translation>VCD 视频</translation>
    </message>
    <message>
        <source>MPEG-1 video for Video CD players.</source>
        <translation>适用于 VCD 播放机的 MPEG-1 视频。</translation>
    </message>
    <message>
        <source>WMV - Windows Media Video</source>
        <translation>WMV - Windows Media Video</translation>
    </message>
    <message>
        <source>Windows Media Video format.</source>
        <translation>Windows Media Video 格式。</translation>
    </message>
    <message>
        <source>Xvid Video</source>
        <translation>Xvid 视频</translation>
    </message>
    <message>
        <source>Xvid video in an AVI container.</source>
        <translation>封装在 AVI 容器中的 Xvid 视频。</translation>
    </message>
    <message>
        <source>Matroska Video</source>
        <translation>Matroska 视频</translation>
    </message>
    <message>
        <source>Matroska video format.</source>
        <translation>Matroska 视频格式。</translation>
    </message>
    <message>
        <source>WebM Video</source>
        <translation>WebM 视频</translation>
    </message>
    <message>
        <source>WebM video format for the web.</source>
        <translation>适用于网页的 WebM 视频格式。</translation>
    </message>
    <message>
        <source>AC3 - Dolby Digital AC-3</source>
        <translation>AC3 - Dolby Digital AC-3</translation>
    </message>
    <message>
        <source>Dolby Digital AC-3 audio format.</source>
        <translation>Dolby Digital AC-3 音频格式。</translation>
    </message>
    <message>
        <source>AIFF - Audio Interchange File Format</source>
        <translation>AIFF - Audio Interchange File Format</translation>
    </message>
    <message>
        <source>Audio Interchange File Format, uncompressed audio.</source>
        <translation>Audio Interchange File Format，无压缩音频。</translation>
    </message>
    <message>
        <source>ALAC - Apple Lossless Audio Codec</source>
        <translation>ALAC - Apple Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Apple Lossless audio format.</source>
        <translation>Apple Lossless 音频格式。</translation>
    </message>
    <message>
        <source>FLAC - Free Lossless Audio Codec</source>
        <translation>FLAC - Free Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec format.</source>
        <translation>Free Lossless Audio Codec 无损音频格式。</translation>
    </message>
    <message>
        <source>SUN AU Format</source>
        <translation>SUN AU 格式</translation>
    </message>
    <message>
        <source>Sun AU audio format.</source>
        <translation>Sun AU 音频格式。</translation>
    </message>
    <message>
        <source>M4A - MPEG-4 Audio</source>
        <translation>M4A - MPEG-4 音频</translation>
    </message>
    <message>
        <source>MPEG-4 Audio format.</source>
        <translation>MPEG-4 音频格式。</translation>
    </message>
    <message>
        <source>MP2 - MPEG Layer-2 Audio</source>
        <translation>MP2 - MPEG Layer-2 音频</translation>
    </message>
    <message>
        <source>MPEG Layer-2 audio format.</source>
        <translation>MPEG Layer-2 音频格式。</translation>
    </message>
    <message>
        <source>MP3 - MPEG Layer-3 Audio</source>
        <translation>MP3 - MPEG Layer-3 音频</translation>
    </message>
    <message>
        <source>MPEG Layer-3 audio format.</source>
        <translation>MPEG Layer-3 音频格式。</translation>
    </message>
    <message>
        <source>OGG - Ogg Vorbis Audio</source>
        <translation>OGG - Ogg Vorbis 音频</translation>
    </message>
    <message>
        <source>Ogg Vorbis audio format.</source>
        <translation>Ogg Vorbis 音频格式。</translation>
    </message>
    <message>
        <source>RA - RealAudio</source>
        <translation>RA - RealAudio</translation>
    </message>
    <message>
        <source>RealAudio streaming format.</source>
        <translation>RealAudio 流媒体格式。</translation>
    </message>
    <message>
        <source>WAV - Waveform Audio</source>
        <translation>WAV - Waveform 音频</translation>
    </message>
    <message>
        <source>Waveform audio format, uncompressed.</source>
        <translation>Waveform 音频格式，无压缩。</translation>
    </message>
    <message>
        <source>WMA - Windows Media Audio</source>
        <translation>WMA - Windows Media Audio</translation>
    </message>
    <message>
        <source>Windows Media Audio format.</source>
        <translation>Windows Media Audio 格式。</translation>
    </message>
    <message>
        <source>Android MPEG4 Video</source>
        <translation>Android MPEG4 视频</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Android</source>
        <translation>针对 Android 优化的 MPEG4 配置文件</translation>
    </message>
    <message>
        <source>Samsung Galaxy S3 H.264 Video</source>
        <translation>Samsung Galaxy S3 H.264 视频</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Galaxy S3</source>
        <translation>针对 Galaxy S3 优化的 H.264/MPEG-4 AVC 配置文件</translation>
    </message>
    <message>
        <source>Samsung Galaxy Tab MPEG4 Video</source>
        <translation>Samsung Galaxy Tab MPEG4 视频</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Galaxy Tab</source>
        <translation>针对 Galaxy Tab 优化的 MPEG4 配置文件</translation>
    </message>
    <message>
        <source>Apple TV H.264 Video</source>
        <translation>Apple TV H.264 视频</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV</source>
        <translation>针对 Apple TV 优化的 H.264/MPEG-4 AVC 配置文件</translation>
    </message>
    <message>
        <source>Apple TV H.264 HD Video</source>
        <translation>Apple TV H.264 高清视频</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV HD</source>
        <translation>针对 Apple TV HD 优化的 H.264/MPEG-4 AVC 配置文件</translation>
    </message>
    <message>
        <source>Apple TV 3 H.264 1080P Video</source>
        <translation>Apple TV 3 H.264 1080P 视频</translation>
    </message>
    <message>
        <source>Apple TV MPEG4 Video</source>
        <translation>Apple TV MPEG4 视频</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Apple TV</source>
        <translation>针对 Apple TV 优化的 MPEG4 配置文件</translation>
    </message>
    <message>
        <source>HD ASF Video</source>
        <translation>高清 ASF 视频</translation>
    </message>
    <message>
        <source>ASF profile optimized for HD players</source>
        <translation>针对高清播放器优化的 ASF 配置文件</translation>
    </message>
    <message>
        <source>HD AVI Video</source>
        <translation>高清 AVI 视频</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for HD players</source>
        <translation>针对高清播放器优化的 MPEG4 AVI 配置文件</translation>
    </message>
    <message>
        <source>HD H.264/MPEG-4 AVC Video</source>
        <translation>高清 H.264/MPEG-4 AVC 视频</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for HD players</source>
        <translation>针对高清播放器优化的 H.264/MPEG-4 AVC 配置文件</translation>
    </message>
    <message>
        <source>HD Quick Time Video</source>
        <translation>高清 QuickTime 视频</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for HD players</source>
        <translation>针对高清播放器优化的 MPEG4 配置文件</translation>
    </message>
    <message>
        <source>MPEG2-PS HD Video</source>
        <translation>MPEG2-PS 高清视频</translation>
    </message>
    <message>
        <source>MPEG2 profile optimized for HD players</source>
        <translation>针对高清播放器优化的 MPEG2 配置文件</translation>
    </message>
    <message>
        <source>MPEG2-TS HD Video</source>
        <translation>MPEG2-TS 高清视频</translation>
    </message>
    <message>
        <source>MPEG4 HD Video</source>
        <translation>MPEG4 高清视频</translation>
    </message>
    <message>
        <source>RM HD Video</source>
        <translation>RM 高清视频</translation>
    </message>
    <message>
        <source>RealVideo profile optimized for HD players</source>
        <translation>针对高清播放器优化的 RealVideo 配置文件</translation>
    </message>
    <message>
        <source>HD WMV Video</source>
        <translation>高清 WMV 视频</translation>
    </message>
    <message>
        <source>WMV profile optimized for HD players</source>
        <translation>针对高清播放器优化的 WMV 配置文件</translation>
    </message>
    <message>
        <source>XVID HD Video</source>
        <translation>XVID 高清视频</translation>
    </message>
    <message>
        <source>Xvid profile optimized for HD players</source>
        <translation>针对高清播放器优化的 Xvid 配置文件</translation>
    </message>
    <message>
        <source>iPad H.264 Video</source>
        <translation>iPad H.264 视频</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPad</source>
        <translation>针对 iPad 优化的 H.264/MPEG-4 AVC 配置文件</translation>
    </message>
    <message>
        <source>iPad H.264 HD Video</source>
        <translation>iPad H.264 高清视频</translation>
    </message>
    <message>
        <source>iPad MPEG4 Video</source>
        <translation>iPad MPEG4 视频</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPad</source>
        <translation>针对 iPad 优化的 MPEG4 配置文件</translation>
    </message>
    <message>
        <source>iPad 2 H.264 Video</source>
        <translation>iPad 2 H.264 视频</translation>
    </message>
    <message>
        <source>iPad 2 H.264 HD Video</source>
        <translation>iPad 2 H.264 高清视频</translation>
    </message>
    <message>
        <source>iPad 2 MPEG4 Video</source>
        <translation>iPad 2 MPEG4 视频</translation>
    </message>
    <message>
        <source>iPad 3 1080P Video</source>
        <translation>iPad 3 1080P 视频</translation>
    </message>
    <message>
        <source>iPad mini H.264 Video</source>
        <translation>iPad mini H.264 视频</translation>
    </message>
    <message>
        <source>iPhone H.264 Video</source>
        <translation>iPhone H.264 视频</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPhone</source>
        <translation>针对 iPhone 优化的 H.264/MPEG-4 AVC 配置文件</translation>
    </message>
    <message>
        <source>iPhone MPEG4 Video</source>
        <translation>iPhone MPEG4 视频</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPhone</source>
        <translation>针对 iPhone 优化的 MPEG4 配置文件</translation>
    </message>
    <message>
        <source>iPhone 4 H.264 Video</source>
        <translation>iPhone 4 H.264 视频</translation>
    </message>
    <message>
        <source>iPhone 4 MPEG4 Video</source>
        <translation>iPhone 4 MPEG4 视频</translation>
    </message>
    <message>
        <source>iPhone 5 H.264 Video</source>
        <translation>iPhone 5 H.264 视频</translation>
    </message>
    <message>
        <source>iPod H.264 Video</source>
        <translation>iPod H.264 视频</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod</source>
        <translation>针对 iPod 优化的 H.264/MPEG-4 AVC 配置文件</translation>
    </message>
    <message>
        <source>iPod MPEG4 Video</source>
        <translation>iPod MPEG4 视频</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod</source>
        <translation>针对 iPod 优化的 MPEG4 配置文件</translation>
    </message>
    <message>
        <source>iPod touch H.264 Video</source>
        <translation>iPod touch H.264 视频</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod touch</source>
        <translation>针对 iPod touch 优化的 H.264/MPEG-4 AVC 配置文件</translation>
    </message>
    <message>
        <source>iPod touch MPEG4 Video</source>
        <translation>iPod touch MPEG4 视频</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod touch</source>
        <translation>针对 iPod touch 优化的 MPEG4 配置文件</translation>
    </message>
    <message>
        <source>iPod touch 4 H.264 Video</source>
        <translation>iPod touch 4 H.264 视频</translation>
    </message>
    <message>
        <source>iPod touch 4 MPEG4 Video</source>
        <translation>iPod touch 4 MPEG4 视频</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Stereo</source>
        <translation>手机 3GP 视频 - 立体声</translation>
    </message>
    <message>
        <source>3GP profile optimized for mobile phones</source>
        <translation>针对手机优化的 3GP 配置文件</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Mono</source>
        <translation>手机 3GP 视频 - 单声道</translation>
    </message>
    <message>
        <source>BlackBerry 3GP Video</source>
        <translation>BlackBerry 3GP 视频</translation>
    </message>
    <message>
        <source>BlackBerry AVI Video</source>
        <translation>BlackBerry AVI 视频</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for mobile phones</source>
        <translation>针对手机优化的 MPEG4 AVI 配置文件</translation>
    </message>
    <message>
        <source>BlackBerry MPEG4 Video</source>
        <translation>BlackBerry MPEG4 视频</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for mobile phones</source>
        <translation>针对手机优化的 MPEG4 配置文件</translation>
    </message>
    <message>
        <source>WMV Video for Mobile Phone</source>
        <translation>手机 WMV 视频</translation>
    </message>
    <message>
        <source>WMV profile optimized for mobile phones</source>
        <translation>针对手机优化的 WMV 配置文件</translation>
    </message>
    <message>
        <source>FLV - Flash Video Format</source>
        <translation>FLV - Flash 视频格式</translation>
    </message>
    <message>
        <source>Flash video format for web pages.</source>
        <translation>用于网页的 Flash 视频格式。</translation>
    </message>
    <message>
        <source>Picture - BMP format</source>
        <translation>图片 - BMP 格式</translation>
    </message>
    <message>
        <source>Pictures captured from the video as BMP files.</source>
        <translation>从视频中截取的图片，保存为 BMP 文件。</translation>
    </message>
    <message>
        <source>Picture - GIF Animation format</source>
        <translation>图片 - GIF 动画格式</translation>
    </message>
    <message>
        <source>An animated GIF picture made from the video.</source>
        <translation>由视频制作的 GIF 动画图片。</translation>
    </message>
    <message>
        <source>Picture - JPEG format</source>
        <translation>图片 - JPEG 格式</translation>
    </message>
    <message>
        <source>Pictures captured from the video as JPEG files.</source>
        <translation>从视频中截取的图片，保存为 JPEG 文件。</translation>
    </message>
    <message>
        <source>Picture - PNG format</source>
        <translation>图片 - PNG 格式</translation>
    </message>
    <message>
        <source>Pictures captured from the video as PNG files.</source>
        <translation>从视频中截取的图片，保存为 PNG 文件。</translation>
    </message>
    <message>
        <source>SWF - SWF Format</source>
        <translation>SWF - SWF 格式</translation>
    </message>
    <message>
        <source>Shockwave Flash animation format.</source>
        <translation>Shockwave Flash 动画格式。</translation>
    </message>
    <message>
        <source>Archos MPEG4</source>
        <translation>Archos MPEG4</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for portable players</source>
        <translation>针对便携式播放器优化的 MPEG4 配置文件</translation>
    </message>
    <message>
        <source>Creative ZEN MPEG4 Video</source>
        <translation>Creative ZEN MPEG4 视频</translation>
    </message>
    <message>
        <source>iRiver MPEG4 Video</source>
        <translation>iRiver MPEG4 视频</translation>
    </message>
    <message>
        <source>PS3 H.264 Video</source>
        <translation>PS3 H.264 视频</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for PS3</source>
        <translation>针对 PS3 优化的 H.264/MPEG-4 AVC 配置文件</translation>
    </message>
    <message>
        <source>PSP MPEG-4 Video</source>
        <translation>PSP MPEG-4 视频</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for PSP</source>
        <translation>针对 PSP 优化的 MPEG4 配置文件</translation>
    </message>
    <message>
        <source>Xbox360 H.264 Video</source>
        <translation>Xbox360 H.264 视频</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Xbox360</source>
        <translation>针对 Xbox360 优化的 H.264/MPEG-4 AVC 配置文件</translation>
    </message>
    <message>
        <source>Xbox360 MPEG4 Video</source>
        <translation>Xbox360 MPEG4 视频</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Xbox360</source>
        <translation>针对 Xbox360 优化的 MPEG4 配置文件</translation>
    </message>
    <message>
        <source>Xbox360 WMV Video</source>
        <translation>Xbox360 WMV 视频</translation>
    </message>
    <message>
        <source>WMV profile optimized for Xbox360</source>
        <translation>针对 Xbox360 优化的 WMV 配置文件</translation>
    </message>
    <message>
        <source>Zune MPEG4 Video</source>
        <translation>Zune MPEG4 视频</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Zune</source>
        <translation>针对 Zune 优化的 MPEG4 配置文件</translation>
    </message>
</context>
<context>
    <name>ProfileGroupLoader</name>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
</context>
<context>
    <name>ProfileMenu</name>
    <message>
        <source>Previous group</source>
        <translation>上一个分组</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>下一个分组</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>搜索配置文件</translation>
    </message>
    <message>
        <source>Previous profile</source>
        <translation>上一个配置文件</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>配置文件列表</translation>
    </message>
    <message>
        <source>Next profile</source>
        <translation>下一个配置文件</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>搜索配置文件...</translation>
    </message>
</context>
<context>
    <name>QtColorComboBox</name>
    <message>
        <source>More...</source>
        <translation>更多...</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>深红色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>深绿色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>深蓝色</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation>深青色</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>洋红色</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>深洋红色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>深黄色</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>深灰色</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>浅灰色</translation>
    </message>
    <message>
        <source>User color %1</source>
        <translation>自定义颜色 %1</translation>
    </message>
    <message>
        <source>User Color 99</source>
        <translation>自定义颜色 99</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性列表</translation>
    </message>
</context>
<context>
    <name>QxLanguage</name>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
</context>
<context>
    <name>QxSkin</name>
    <message>
        <source>&amp;Skin</source>
        <translation>皮肤(&amp;S)</translation>
    </message>
</context>
<context>
    <name>SettingDialog</name>
    <message>
        <source>Advanced Settings</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>简单</translation>
    </message>
    <message>
        <source>Video Size:</source>
        <translation>视频尺寸：</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>视频尺寸</translation>
    </message>
    <message>
        <source>Video Quality:</source>
        <translation>视频质量：</translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation>视频质量</translation>
    </message>
    <message>
        <source>Audio Quality:</source>
        <translation>音频质量：</translation>
    </message>
    <message>
        <source>Audio Quality</source>
        <translation>音频质量</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Apply To All</source>
        <translation>应用到全部</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Picture Format</source>
        <translation>图片格式</translation>
    </message>
    <message>
        <source>Picture format.</source>
        <translation>截取图片的文件格式。</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>间隔</translation>
    </message>
    <message>
        <source>Select how many seconds to capture one picture.</source>
        <translation>设置每隔多少秒截取一张图片。</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Video options</source>
        <translation>视频选项</translation>
    </message>
    <message>
        <source>Video Codec</source>
        <translation>视频编码器</translation>
    </message>
    <message>
        <source>Set the video codec (methods of compression for digital videos, e.g., MPEG-4, H.264 or WMV) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>设置编码引擎使用的视频编码器（数字视频的压缩方式，例如 MPEG-4、H.264 或 WMV）。通常与所选的输出格式有关。</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>视频尺寸</translation>
    </message>
    <message>
        <source>Set frame size. The format is &apos;width x height&apos; like 320x240, 640x480 or 1920x1080 pixels. You can choose an similar size for your playback device screen resolution.</source>
        <translation>设置画面尺寸。格式为“宽 x 高”，例如 320x240、640x480 或 1920x1080 像素。可以选择与播放设备屏幕分辨率相近的尺寸。</translation>
    </message>
    <message>
        <source>Video Bitrate</source>
        <translation>视频比特率</translation>
    </message>
    <message>
        <source>Set the video bit rate in kilobit per second. This is the key factor that is related to the output file size and video quality -- the larger the bit rate, the better the video quality and the bigger the output file you will get, and vice versa.</source>
        <translation>设置视频比特率，单位为千比特每秒。它是决定输出文件大小和视频质量的关键因素：比特率越高，视频质量越好，输出文件也越大；反之亦然。</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>帧率</translation>
    </message>
    <message>
        <source>Set how many frames should be displayed per second (FPS). Higher frame rate increases the smoothness when played back, and usually 25--30 frame per second can provide you with a very good viewing experience.</source>
        <translation>设置每秒显示的帧数 (FPS)。帧率越高，播放越流畅；通常每秒 25～30 帧即可提供很好的观看体验。</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>宽高比</translation>
    </message>
    <message>
        <source>Set width to height ratio according to the screen aspect of your playback device . (4:3, 16:9 or 1.3333, 1.7777).</source>
        <translation>根据播放设备的屏幕比例设置宽度与高度之比（4:3、16:9 或 1.3333、1.7777）。</translation>
    </message>
    <message>
        <source>Same Quality</source>
        <translation>与源相同质量</translation>
    </message>
    <message>
        <source>This function enables you to get good output video quality as the source. (Sometimes this function may bring you a large output file, or make the converting time pretty long.)</source>
        <translation>此功能可使输出视频获得与源文件同样好的质量。（有时可能会生成较大的输出文件，或使转换时间变得相当长。）</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Select zoom mode, that is how to deal with the blank edge when the aspect of the source and the destination is different.</source>
        <translation>选择缩放模式，即源与目标的宽高比不同时如何处理空白边缘。</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Audio options</source>
        <translation>音频选项</translation>
    </message>
    <message>
        <source>Audio Codec</source>
        <translation>音频编码器</translation>
    </message>
    <message>
        <source>Set the audio codec (methods of compression for digital audio, e.g., MP3, PCM or AC3) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>设置编码引擎使用的音频编码器（数字音频的压缩方式，例如 MP3、PCM 或 AC3）。通常与所选的输出格式有关。</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>音频比特率</translation>
    </message>
    <message>
        <source>Set audio bitrate (in kbit/s)</source>
        <translation>设置音频比特率（单位为 kbit/s）</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>采样率</translation>
    </message>
    <message>
        <source>Set the audio sampling frequency (the number of samples per second) (default = 44100 Hz).</source>
        <translation>设置音频采样频率，即每秒的采样数（默认值 = 44100 Hz）。</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>声道</translation>
    </message>
    <message>
        <source>Set number of audio channels, 1(Mono), 2(Stereo) and 5.1(Dolby Digital) are commonly used for general digital audio.</source>
        <translation>设置音频声道数。一般数字音频常用 1（单声道）、2（立体声）和 5.1（Dolby Digital）。</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Set the output volume.</source>
        <translation>设置输出音量。</translation>
    </message>
    <message>
        <source>Disable Audio</source>
        <translation>禁用音频</translation>
    </message>
    <message>
        <source>Disable audio</source>
        <translation>输出文件不含音频</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Summary of the file</source>
        <translation>文件的摘要信息</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Set the title</source>
        <translation>设置标题</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Set the author</source>
        <translation>设置作者</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>版权</translation>
    </message>
    <message>
        <source>Set the copyright</source>
        <translation>设置版权信息</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Set the comment</source>
        <translation>设置备注</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>专辑</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>流派</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>作曲</translation>
    </message>
    <message>
        <source>Orig. Artist</source>
        <translation>原艺术家</translation>
    </message>
    <message>
        <source>Encoded by</source>
        <translation>编码者</translation>
    </message>
    <message>
        <source>Url</source>
        <translation>网址</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年份</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>Expert options</source>
        <translation>高级选项</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Title_%1</source>
        <translation>标题_%1</translation>
    </message>
    <message>
        <source>Merge %1</source>
        <translation>合并 %1</translation>
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
        <translation>KB</translation>
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
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Open DVD...</source>
        <translation>打开 DVD...</translation>
    </message>
    <message>
        <source>Open DVD Folder...</source>
        <translation>打开 DVD 文件夹...</translation>
    </message>
    <message>
        <source>Open IFO Files...</source>
        <translation>打开 IFO 文件...</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>加载项目...</translation>
    </message>
    <message>
        <source>Save Project...</source>
        <translation>保存项目...</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>项目另存为...</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>搜索配置文件...</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>属性...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>移至顶部</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>移至底部</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>克隆</translation>
    </message>
    <message>
        <source>Remove Selected Item(s)</source>
        <translation>移除所选项目</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>全部清除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>全不选</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>反向选择</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>全部勾选</translation>
    </message>
    <message>
        <source>Uncheck All</source>
        <translation>全部取消勾选</translation>
    </message>
    <message>
        <source>Invert Check</source>
        <translation>反向勾选</translation>
    </message>
    <message>
        <source>Merge Selected into One</source>
        <translation>将所选合并为一个</translation>
    </message>
    <message>
        <source>Split by Chapter</source>
        <translation>按章节分割</translation>
    </message>
    <message>
        <source>Add Output Profile...</source>
        <translation>添加输出配置文件...</translation>
    </message>
    <message>
        <source>Apply Profile to All</source>
        <translation>将配置文件应用到全部</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>播放(&amp;P)</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>播放/暂停</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一个</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一个</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>Open Snapshot Folder</source>
        <translation>打开快照文件夹</translation>
    </message>
    <message>
        <source>Change Snapshot Folder</source>
        <translation>更改快照文件夹</translation>
    </message>
    <message>
        <source>Snapshot Format</source>
        <translation>快照格式</translation>
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
        <translation>全屏</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation>剪辑(&amp;C)</translation>
    </message>
    <message>
        <source>Trim...</source>
        <translation>剪切...</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>裁剪...</translation>
    </message>
    <message>
        <source>Smart Crop</source>
        <translation>智能裁剪</translation>
    </message>
    <message>
        <source>Watermark...</source>
        <translation>水印...</translation>
    </message>
    <message>
        <source>Effect...</source>
        <translation>效果...</translation>
    </message>
    <message>
        <source>Clear All Effects</source>
        <translation>清除所有效果</translation>
    </message>
    <message>
        <source>Audio Track...</source>
        <translation>音轨...</translation>
    </message>
    <message>
        <source>Subtitle...</source>
        <translation>字幕...</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>操作(&amp;A)</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>转换勾选的项目</translation>
    </message>
    <message>
        <source>Pause Checked Item(s)</source>
        <translation>暂停勾选的项目</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>停止勾选的项目</translation>
    </message>
    <message>
        <source>Open Source File Location</source>
        <translation>打开源文件位置</translation>
    </message>
    <message>
        <source>Open Output File Location</source>
        <translation>打开输出文件位置</translation>
    </message>
    <message>
        <source>Post Task Actions</source>
        <translation>任务完成后操作</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>不执行任何操作</translation>
    </message>
    <message>
        <source>Exit Program</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>Shut Down</source>
        <translation>关机</translation>
    </message>
    <message>
        <source>Log Off</source>
        <translation>注销</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>休眠</translation>
    </message>
    <message>
        <source>Stand By</source>
        <translation>待机</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重新启动</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>选项(&amp;O)</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>首选项...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>&amp;Open DVD</source>
        <translation>打开 DVD(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Trim</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>裁剪(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation>效果(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Merge</source>
        <translation>合并(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Preference</source>
        <translation>首选项(&amp;P)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <translation>配置文件(&amp;P)：</translation>
    </message>
    <message>
        <source>Setting...</source>
        <translation>设置...</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>另存为...</translation>
    </message>
    <message>
        <source>&amp;Destination:</source>
        <translation>输出目录(&amp;D)：</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>输出目录</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>总进度</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Open Files...</source>
        <translation>打开文件...</translation>
    </message>
    <message>
        <source>Open Folder...</source>
        <translation>打开文件夹...</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>增大</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>减小</translation>
    </message>
    <message>
        <source>Convert Selected Item(s)</source>
        <translation>转换选定项</translation>
    </message>
    <message>
        <source>Pause Selected Item(s)</source>
        <translation>暂停选定项</translation>
    </message>
    <message>
        <source>Stop Selected Item(s)</source>
        <translation>停止选定项</translation>
    </message>
    <message>
        <source>Convert All Item(s)</source>
        <translation>转换所有项</translation>
    </message>
    <message>
        <source>Pause All Item(s)</source>
        <translation>暂停所有项</translation>
    </message>
    <message>
        <source>Stop All Item(s)</source>
        <translation>停止所有项</translation>
    </message>
</context>
<context>
    <name>saveAsDlg</name>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Save As:</source>
        <translation>另存为：</translation>
    </message>
</context>
<context>
    <name>splash</name>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2。保留所有权利。</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>版本：%1</translation>
    </message>
</context>
</TS>
