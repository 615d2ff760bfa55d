<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
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
        <translation>顯示原始畫面</translation>
    </message>
    <message>
        <source>Display Output Frame</source>
        <translation>顯示輸出畫面</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>另存新檔(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>重新命名(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>刪除(&amp;D)</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>快速入門</translation>
    </message>
    <message>
        <source>1. Click &quot;%1 Open DVD %2&quot; to Open DVD.</source>
        <translation>1. 按一下「%1 開啟 DVD %2」以開啟 DVD。</translation>
    </message>
    <message>
        <source>2. Click &quot;%1 Trim&quot; or &quot;%2 Crop&quot; to edit video file.</source>
        <translation>2. 按一下「%1 修剪」或「%2 裁切」以編輯視訊檔案。</translation>
    </message>
    <message>
        <source>3. Select output format from the &quot;Profile&quot; list.</source>
        <translation>3. 從「設定檔」清單中選取輸出格式。</translation>
    </message>
    <message>
        <source>4. Click &quot;%1&quot; to convert.</source>
        <translation>4. 按一下「%1」開始轉換。</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?</source>
        <translation>確定要停止轉換嗎？</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Please Select Output Folder</source>
        <translation>請選取輸出資料夾</translation>
    </message>
    <message>
        <source>Please select a DVD drive or a DVD folder.</source>
        <translation>請選擇 DVD 光碟機或 DVD 資料夾。</translation>
    </message>
    <message>
        <source>Open IFO Files</source>
        <translation>開啟 IFO 檔案</translation>
    </message>
    <message>
        <source>IFO Files (*.ifo *.IFO)</source>
        <translation>IFO 檔案 (*.ifo *.IFO)</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入...</translation>
    </message>
    <message>
        <source>The IFO File is invalid.
%1</source>
        <translation>IFO 檔案無效。
%1</translation>
    </message>
    <message>
        <source>Following files can not be loaded(They are not valid media files or their formats are not supported):</source>
        <translation>無法載入下列檔案（不是有效的媒體檔案或格式不受支援）：</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有檔案</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>所有支援的格式</translation>
    </message>
    <message>
        <source>Supported Video</source>
        <translation>支援的視訊</translation>
    </message>
    <message>
        <source>Supported Audio</source>
        <translation>支援的音訊</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>載入</translation>
    </message>
    <message>
        <source>Select a Folder</source>
        <translation>選擇資料夾</translation>
    </message>
    <message>
        <source>Audio Tracks</source>
        <translation>音軌</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Source file %1 not found!</source>
        <translation>找不到來源檔案 %1！</translation>
    </message>
    <message>
        <source>Can not save the image.</source>
        <translation>無法儲存影像。</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>轉換勾選的項目</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>停止勾選的項目</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Elapsed Time: %1 Remaining Time: %2 Progress: </source>
        <translation>已用時間: %1 剩餘時間: %2 進度: </translation>
    </message>
    <message>
        <source>Conversion finished</source>
        <translation>轉換完成</translation>
    </message>
    <message>
        <source>Succeeded: %1, failed: %2</source>
        <translation>成功: %1，失敗: %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>Your profiles could not be saved.
%1</source>
        <translation>無法儲存您的設定檔。
%1</translation>
    </message>
    <message>
        <source>Are you sure to apply current profile settings to all items?</source>
        <translation>確定要將目前設定檔的設定套用到所有項目嗎？</translation>
    </message>
</context>
<context>
    <name>CPlayPauseButton</name>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
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
        <translation>設定檔</translation>
    </message>
</context>
<context>
    <name>CProfileMenu</name>
    <message>
        <source>Recommended</source>
        <translation>推薦</translation>
    </message>
</context>
<context>
    <name>CSearchLineEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>清除搜尋</translation>
    </message>
</context>
<context>
    <name>CustomItemWidget</name>
    <message>
        <source>Convert This Item</source>
        <translation>轉換此項目</translation>
    </message>
    <message>
        <source>Audio Track</source>
        <translation>音軌</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Output Name</source>
        <translation>輸出名稱</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>設定檔</translation>
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
        <translation>關閉</translation>
    </message>
    <message>
        <source>Stop Converting</source>
        <translation>停止轉換</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>剩餘時間</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>節目</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>時長</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>位元速率</translation>
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
        <translation>無</translation>
    </message>
    <message>
        <source>Edit Audio</source>
        <translation>編輯音訊</translation>
    </message>
    <message>
        <source>Edit Subtitle</source>
        <translation>編輯字幕</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>等待中...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Pending...</source>
        <translation>擱置中...</translation>
    </message>
    <message>
        <source>Succeed</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>摺疊</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?
Some of the unfinished files cannot be played properly.</source>
        <translation>確定要停止轉換嗎？
部分未完成的檔案將無法正常播放。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
</context>
<context>
    <name>PlayerScreen</name>
    <message>
        <source>Video</source>
        <translation>影片</translation>
    </message>
</context>
<context>
    <name>Profile</name>
    <message>
        <source>User Defined</source>
        <translation>使用者自訂</translation>
    </message>
    <message>
        <source>General Video</source>
        <translation>一般影片</translation>
    </message>
    <message>
        <source>General Audio</source>
        <translation>一般音訊</translation>
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
        <translation>HD 影片</translation>
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
        <translation>手機</translation>
    </message>
    <message>
        <source>Picture and Animation</source>
        <translation>圖片與動畫</translation>
    </message>
    <message>
        <source>Portable Multimedia Device</source>
        <translation>可攜式多媒體裝置</translation>
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
        <translation>Xbox HD 影片</translation>
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
        <translation>Advanced Streaming Format，一種 Windows Media 容器格式。</translation>
    </message>
    <message>
        <source>AVI - Audio-Video Interleaved</source>
        <translation>AVI - Audio-Video Interleaved</translation>
    </message>
    <message>
        <source>Audio-Video Interleaved, the classic Windows video format.</source>
        <translation>Audio-Video Interleaved，經典的 Windows 影片格式。</translation>
    </message>
    <message>
        <source>DivX Video</source>
        <translation>DivX 影片</translation>
    </message>
    <message>
        <source>DivX video in an AVI container.</source>
        <translation>以 AVI 容器封裝的 DivX 影片。</translation>
    </message>
    <message>
        <source>DV - Digital Video format</source>
        <translation>DV - 數位影片格式</translation>
    </message>
    <message>
        <source>Digital Video format of camcorders.</source>
        <translation>數位攝影機使用的數位影片格式。</translation>
    </message>
    <message>
        <source>DVD Video</source>
        <translation>DVD 影片</translation>
    </message>
    <message>
        <source>MPEG-2 video for DVD players.</source>
        <translation>適用於 DVD 播放機的 MPEG-2 影片。</translation>
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
        <translation>MPEG4 影片</translation>
    </message>
    <message>
        <source>MPEG-4 video format.</source>
        <translation>MPEG-4 影片格式。</translation>
    </message>
    <message>
        <source>MPEG1 Video</source>
        <translation>MPEG1 影片</translation>
    </message>
    <message>
        <source>MPEG-1 video format.</source>
        <translation>MPEG-1 影片格式。</translation>
    </message>
    <message>
        <source>MPEG2 Video</source>
        <translation>MPEG2 影片</translation>
    </message>
    <message>
        <source>MPEG-2 video format.</source>
        <translation>MPEG-2 影片格式。</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC Video</source>
        <translation>H.264/MPEG-4 AVC 影片</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC video format.</source>
        <translation>H.264/MPEG-4 AVC 影片格式。</translation>
    </message>
    <message>
        <source>RM - Real Video</source>
        <translation>RM - Real Video</translation>
    </message>
    <message>
        <source>RealVideo streaming format.</source>
        <translation>RealVideo 串流格式。</translation>
    </message>
    <message>
        <source>VCD Video</source>
        <translation>VCD 影片</translation>
    </message>
    <message>
        <source>MPEG-1 video for Video CD players.</source>
        <translation>適用於 VCD 播放機的 MPEG-1 影片。</translation>
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
        <translation>Xvid 影片</translation>
    </message>
    <message>
        <source>Xvid video in an AVI container.</source>
        <translation>以 AVI 容器封裝的 Xvid 影片。</translation>
    </message>
    <message>
        <source>Matroska Video</source>
        <translation>Matroska 影片</translation>
    </message>
    <message>
        <source>Matroska video format.</source>
        <translation>Matroska 影片格式。</translation>
    </message>
    <message>
        <source>WebM Video</source>
        <translation>WebM 影片</translation>
    </message>
    <message>
        <source>WebM video format for the web.</source>
        <translation>適用於網路的 WebM 影片格式。</translation>
    </message>
    <message>
        <source>AC3 - Dolby Digital AC-3</source>
        <translation>AC3 - Dolby Digital AC-3</translation>
    </message>
    <message>
        <source>Dolby Digital AC-3 audio format.</source>
        <translation>Dolby Digital AC-3 音訊格式。</translation>
    </message>
    <message>
        <source>AIFF - Audio Interchange File Format</source>
        <translation>AIFF - Audio Interchange File Format</translation>
    </message>
    <message>
        <source>Audio Interchange File Format, uncompressed audio.</source>
        <translation>Audio Interchange File Format，未壓縮的音訊。</translation>
    </message>
    <message>
        <source>ALAC - Apple Lossless Audio Codec</source>
        <translation>ALAC - Apple Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Apple Lossless audio format.</source>
        <translation>Apple Lossless 音訊格式。</translation>
    </message>
    <message>
        <source>FLAC - Free Lossless Audio Codec</source>
        <translation>FLAC - Free Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec format.</source>
        <translation>Free Lossless Audio Codec 無損音訊格式。</translation>
    </message>
    <message>
        <source>SUN AU Format</source>
        <translation>SUN AU 格式</translation>
    </message>
    <message>
        <source>Sun AU audio format.</source>
        <translation>Sun AU 音訊格式。</translation>
    </message>
    <message>
        <source>M4A - MPEG-4 Audio</source>
        <translation>M4A - MPEG-4 音訊</translation>
    </message>
    <message>
        <source>MPEG-4 Audio format.</source>
        <translation>MPEG-4 音訊格式。</translation>
    </message>
    <message>
        <source>MP2 - MPEG Layer-2 Audio</source>
        <translation>MP2 - MPEG Layer-2 音訊</translation>
    </message>
    <message>
        <source>MPEG Layer-2 audio format.</source>
        <translation>MPEG Layer-2 音訊格式。</translation>
    </message>
    <message>
        <source>MP3 - MPEG Layer-3 Audio</source>
        <translation>MP3 - MPEG Layer-3 音訊</translation>
    </message>
    <message>
        <source>MPEG Layer-3 audio format.</source>
        <translation>MPEG Layer-3 音訊格式。</translation>
    </message>
    <message>
        <source>OGG - Ogg Vorbis Audio</source>
        <translation>OGG - Ogg Vorbis 音訊</translation>
    </message>
    <message>
        <source>Ogg Vorbis audio format.</source>
        <translation>Ogg Vorbis 音訊格式。</translation>
    </message>
    <message>
        <source>RA - RealAudio</source>
        <translation>RA - RealAudio</translation>
    </message>
    <message>
        <source>RealAudio streaming format.</source>
        <translation>RealAudio 串流格式。</translation>
    </message>
    <message>
        <source>WAV - Waveform Audio</source>
        <translation>WAV - Waveform 音訊</translation>
    </message>
    <message>
        <source>Waveform audio format, uncompressed.</source>
        <translation>Waveform 音訊格式，未壓縮。</translation>
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
        <translation>Android MPEG4 影片</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Android</source>
        <translation>針對 Android 最佳化的 MPEG4 設定檔</translation>
    </message>
    <message>
        <source>Samsung Galaxy S3 H.264 Video</source>
        <translation>Samsung Galaxy S3 H.264 影片</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Galaxy S3</source>
        <translation>針對 Galaxy S3 最佳化的 H.264/MPEG-4 AVC 設定檔</translation>
    </message>
    <message>
        <source>Samsung Galaxy Tab MPEG4 Video</source>
        <translation>Samsung Galaxy Tab MPEG4 影片</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Galaxy Tab</source>
        <translation>針對 Galaxy Tab 最佳化的 MPEG4 設定檔</translation>
    </message>
    <message>
        <source>Apple TV H.264 Video</source>
        <translation>Apple TV H.264 影片</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV</source>
        <translation>針對 Apple TV 最佳化的 H.264/MPEG-4 AVC 設定檔</translation>
    </message>
    <message>
        <source>Apple TV H.264 HD Video</source>
        <translation>Apple TV H.264 HD 影片</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV HD</source>
        <translation>針對 Apple TV HD 最佳化的 H.264/MPEG-4 AVC 設定檔</translation>
    </message>
    <message>
        <source>Apple TV 3 H.264 1080P Video</source>
        <translation>Apple TV 3 H.264 1080P 影片</translation>
    </message>
    <message>
        <source>Apple TV MPEG4 Video</source>
        <translation>Apple TV MPEG4 影片</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Apple TV</source>
        <translation>針對 Apple TV 最佳化的 MPEG4 設定檔</translation>
    </message>
    <message>
        <source>HD ASF Video</source>
        <translation>HD ASF 影片</translation>
    </message>
    <message>
        <source>ASF profile optimized for HD players</source>
        <translation>針對 HD 播放器最佳化的 ASF 設定檔</translation>
    </message>
    <message>
        <source>HD AVI Video</source>
        <translation>HD AVI 影片</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for HD players</source>
        <translation>針對 HD 播放器最佳化的 MPEG4 AVI 設定檔</translation>
    </message>
    <message>
        <source>HD H.264/MPEG-4 AVC Video</source>
        <translation>HD H.264/MPEG-4 AVC 影片</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for HD players</source>
        <translation>針對 HD 播放器最佳化的 H.264/MPEG-4 AVC 設定檔</translation>
    </message>
    <message>
        <source>HD Quick Time Video</source>
        <translation>HD QuickTime 影片</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for HD players</source>
        <translation>針對 HD 播放器最佳化的 MPEG4 設定檔</translation>
    </message>
    <message>
        <source>MPEG2-PS HD Video</source>
        <translation>MPEG2-PS HD 影片</translation>
    </message>
    <message>
        <source>MPEG2 profile optimized for HD players</source>
        <translation>針對 HD 播放器最佳化的 MPEG2 設定檔</translation>
    </message>
    <message>
        <source>MPEG2-TS HD Video</source>
        <translation>MPEG2-TS HD 影片</translation>
    </message>
    <message>
        <source>MPEG4 HD Video</source>
        <translation>MPEG4 HD 影片</translation>
    </message>
    <message>
        <source>RM HD Video</source>
        <translation>RM HD 影片</translation>
    </message>
    <message>
        <source>RealVideo profile optimized for HD players</source>
        <translation>針對 HD 播放器最佳化的 RealVideo 設定檔</translation>
    </message>
    <message>
        <source>HD WMV Video</source>
        <translation>HD WMV 影片</translation>
    </message>
    <message>
        <source>WMV profile optimized for HD players</source>
        <translation>針對 HD 播放器最佳化的 WMV 設定檔</translation>
    </message>
    <message>
        <source>XVID HD Video</source>
        <translation>XVID HD 影片</translation>
    </message>
    <message>
        <source>Xvid profile optimized for HD players</source>
        <translation>針對 HD 播放器最佳化的 Xvid 設定檔</translation>
    </message>
    <message>
        <source>iPad H.264 Video</source>
        <translation>iPad H.264 影片</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPad</source>
        <translation>針對 iPad 最佳化的 H.264/MPEG-4 AVC 設定檔</translation>
    </message>
    <message>
        <source>iPad H.264 HD Video</source>
        <translation>iPad H.264 HD 影片</translation>
    </message>
    <message>
        <source>iPad MPEG4 Video</source>
        <translation>iPad MPEG4 影片</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPad</source>
        <translation>針對 iPad 最佳化的 MPEG4 設定檔</translation>
    </message>
    <message>
        <source>iPad 2 H.264 Video</source>
        <translation>iPad 2 H.264 影片</translation>
    </message>
    <message>
        <source>iPad 2 H.264 HD Video</source>
        <translation>iPad 2 H.264 HD 影片</translation>
    </message>
    <message>
        <source>iPad 2 MPEG4 Video</source>
        <translation>iPad 2 MPEG4 影片</translation>
    </message>
    <message>
        <source>iPad 3 1080P Video</source>
        <translation>iPad 3 1080P 影片</translation>
    </message>
    <message>
        <source>iPad mini H.264 Video</source>
        <translation>iPad mini H.264 影片</translation>
    </message>
    <message>
        <source>iPhone H.264 Video</source>
        <translation>iPhone H.264 影片</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPhone</source>
        <translation>針對 iPhone 最佳化的 H.264/MPEG-4 AVC 設定檔</translation>
    </message>
    <message>
        <source>iPhone MPEG4 Video</source>
        <translation>iPhone MPEG4 影片</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPhone</source>
        <translation>針對 iPhone 最佳化的 MPEG4 設定檔</translation>
    </message>
    <message>
        <source>iPhone 4 H.264 Video</source>
        <translation>iPhone 4 H.264 影片</translation>
    </message>
    <message>
        <source>iPhone 4 MPEG4 Video</source>
        <translation>iPhone 4 MPEG4 影片</translation>
    </message>
    <message>
        <source>iPhone 5 H.264 Video</source>
        <translation>iPhone 5 H.264 影片</translation>
    </message>
    <message>
        <source>iPod H.264 Video</source>
        <translation>iPod H.264 影片</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod</source>
        <translation>針對 iPod 最佳化的 H.264/MPEG-4 AVC 設定檔</translation>
    </message>
    <message>
        <source>iPod MPEG4 Video</source>
        <translation>iPod MPEG4 影片</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod</source>
        <translation>針對 iPod 最佳化的 MPEG4 設定檔</translation>
    </message>
    <message>
        <source>iPod touch H.264 Video</source>
        <translation>iPod touch H.264 影片</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod touch</source>
        <translation>針對 iPod touch 最佳化的 H.264/MPEG-4 AVC 設定檔</translation>
    </message>
    <message>
        <source>iPod touch MPEG4 Video</source>
        <translation>iPod touch MPEG4 影片</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod touch</source>
        <translation>針對 iPod touch 最佳化的 MPEG4 設定檔</translation>
    </message>
    <message>
        <source>iPod touch 4 H.264 Video</source>
        <translation>iPod touch 4 H.264 影片</translation>
    </message>
    <message>
        <source>iPod touch 4 MPEG4 Video</source>
        <translation>iPod touch 4 MPEG4 影片</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Stereo</source>
        <translation>手機 3GP 影片 - 立體聲</translation>
    </message>
    <message>
        <source>3GP profile optimized for mobile phones</source>
        <translation>針對手機最佳化的 3GP 設定檔</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Mono</source>
        <translation>手機 3GP 影片 - 單聲道</translation>
    </message>
    <message>
        <source>BlackBerry 3GP Video</source>
        <translation>BlackBerry 3GP 影片</translation>
    </message>
    <message>
        <source>BlackBerry AVI Video</source>
        <translation>BlackBerry AVI 影片</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for mobile phones</source>
        <translation>針對手機最佳化的 MPEG4 AVI 設定檔</translation>
    </message>
    <message>
        <source>BlackBerry MPEG4 Video</source>
        <translation>BlackBerry MPEG4 影片</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for mobile phones</source>
        <translation>針對手機最佳化的 MPEG4 設定檔</translation>
    </message>
    <message>
        <source>WMV Video for Mobile Phone</source>
        <translation>手機 WMV 影片</translation>
    </message>
    <message>
        <source>WMV profile optimized for mobile phones</source>
        <translation>針對手機最佳化的 WMV 設定檔</translation>
    </message>
    <message>
        <source>FLV - Flash Video Format</source>
        <translation>FLV - Flash 影片格式</translation>
    </message>
    <message>
        <source>Flash video format for web pages.</source>
        <translation>用於網頁的 Flash 影片格式。</translation>
    </message>
    <message>
        <source>Picture - BMP format</source>
        <translation>圖片 - BMP 格式</translation>
    </message>
    <message>
        <source>Pictures captured from the video as BMP files.</source>
        <translation>從影片擷取的圖片，儲存為 BMP 檔案。</translation>
    </message>
    <message>
        <source>Picture - GIF Animation format</source>
        <translation>圖片 - GIF 動畫格式</translation>
    </message>
    <message>
        <source>An animated GIF picture made from the video.</source>
        <translation>由影片製作的 GIF 動畫圖片。</translation>
    </message>
    <message>
        <source>Picture - JPEG format</source>
        <translation>圖片 - JPEG 格式</translation>
    </message>
    <message>
        <source>Pictures captured from the video as JPEG files.</source>
        <translation>從影片擷取的圖片，儲存為 JPEG 檔案。</translation>
    </message>
    <message>
        <source>Picture - PNG format</source>
        <translation>圖片 - PNG 格式</translation>
    </message>
    <message>
        <source>Pictures captured from the video as PNG files.</source>
        <translation>從影片擷取的圖片，儲存為 PNG 檔案。</translation>
    </message>
    <message>
        <source>SWF - SWF Format</source>
        <translation>SWF - SWF 格式</translation>
    </message>
    <message>
        <source>Shockwave Flash animation format.</source>
        <translation>Shockwave Flash 動畫格式。</translation>
    </message>
    <message>
        <source>Archos MPEG4</source>
        <translation>Archos MPEG4</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for portable players</source>
        <translation>針對可攜式播放器最佳化的 MPEG4 設定檔</translation>
    </message>
    <message>
        <source>Creative ZEN MPEG4 Video</source>
        <translation>Creative ZEN MPEG4 影片</translation>
    </message>
    <message>
        <source>iRiver MPEG4 Video</source>
        <translation>iRiver MPEG4 影片</translation>
    </message>
    <message>
        <source>PS3 H.264 Video</source>
        <translation>PS3 H.264 影片</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for PS3</source>
        <translation>針對 PS3 最佳化的 H.264/MPEG-4 AVC 設定檔</translation>
    </message>
    <message>
        <source>PSP MPEG-4 Video</source>
        <translation>PSP MPEG-4 影片</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for PSP</source>
        <translation>針對 PSP 最佳化的 MPEG4 設定檔</translation>
    </message>
    <message>
        <source>Xbox360 H.264 Video</source>
        <translation>Xbox360 H.264 影片</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Xbox360</source>
        <translation>針對 Xbox360 最佳化的 H.264/MPEG-4 AVC 設定檔</translation>
    </message>
    <message>
        <source>Xbox360 MPEG4 Video</source>
        <translation>Xbox360 MPEG4 影片</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Xbox360</source>
        <translation>針對 Xbox360 最佳化的 MPEG4 設定檔</translation>
    </message>
    <message>
        <source>Xbox360 WMV Video</source>
        <translation>Xbox360 WMV 影片</translation>
    </message>
    <message>
        <source>WMV profile optimized for Xbox360</source>
        <translation>針對 Xbox360 最佳化的 WMV 設定檔</translation>
    </message>
    <message>
        <source>Zune MPEG4 Video</source>
        <translation>Zune MPEG4 影片</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Zune</source>
        <translation>針對 Zune 最佳化的 MPEG4 設定檔</translation>
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
        <translation>上一個群組</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>群組</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>下一個群組</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>搜尋設定檔</translation>
    </message>
    <message>
        <source>Previous profile</source>
        <translation>上一個設定檔</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>設定檔清單</translation>
    </message>
    <message>
        <source>Next profile</source>
        <translation>下一個設定檔</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>搜尋設定檔...</translation>
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
        <translation>紅色</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>深紅色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠色</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>深綠色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍色</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>深藍色</translation>
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
        <translation>洋紅色</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>深洋紅色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黃色</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>深黃色</translation>
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
        <translation>淺灰色</translation>
    </message>
    <message>
        <source>User color %1</source>
        <translation>自訂色彩 %1</translation>
    </message>
    <message>
        <source>User Color 99</source>
        <translation>自訂色彩 99</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>屬性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>屬性清單</translation>
    </message>
</context>
<context>
    <name>QxLanguage</name>
    <message>
        <source>&amp;Language</source>
        <translation>語言(&amp;L)</translation>
    </message>
</context>
<context>
    <name>QxSkin</name>
    <message>
        <source>&amp;Skin</source>
        <translation>外觀(&amp;S)</translation>
    </message>
</context>
<context>
    <name>SettingDialog</name>
    <message>
        <source>Advanced Settings</source>
        <translation>進階設定</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>簡易</translation>
    </message>
    <message>
        <source>Video Size:</source>
        <translation>影片尺寸：</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>影片尺寸</translation>
    </message>
    <message>
        <source>Video Quality:</source>
        <translation>影片品質：</translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation>影片品質</translation>
    </message>
    <message>
        <source>Audio Quality:</source>
        <translation>音訊品質：</translation>
    </message>
    <message>
        <source>Audio Quality</source>
        <translation>音訊品質</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Apply To All</source>
        <translation>套用至全部</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Picture Format</source>
        <translation>圖片格式</translation>
    </message>
    <message>
        <source>Picture format.</source>
        <translation>擷取圖片的檔案格式。</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>Select how many seconds to capture one picture.</source>
        <translation>設定每隔幾秒擷取一張圖片。</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Video options</source>
        <translation>影片選項</translation>
    </message>
    <message>
        <source>Video Codec</source>
        <translation>影片編解碼器</translation>
    </message>
    <message>
        <source>Set the video codec (methods of compression for digital videos, e.g., MPEG-4, H.264 or WMV) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>設定編碼引擎使用的影片編解碼器（數位影片的壓縮方式，例如 MPEG-4、H.264 或 WMV）。通常與您選擇的輸出格式有關。</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>影片大小</translation>
    </message>
    <message>
        <source>Set frame size. The format is &apos;width x height&apos; like 320x240, 640x480 or 1920x1080 pixels. You can choose an similar size for your playback device screen resolution.</source>
        <translation>設定畫面大小。格式為「寬 x 高」，例如 320x240、640x480 或 1920x1080 像素。您可以選擇與播放裝置螢幕解析度相近的大小。</translation>
    </message>
    <message>
        <source>Video Bitrate</source>
        <translation>影片位元速率</translation>
    </message>
    <message>
        <source>Set the video bit rate in kilobit per second. This is the key factor that is related to the output file size and video quality -- the larger the bit rate, the better the video quality and the bigger the output file you will get, and vice versa.</source>
        <translation>設定影片位元速率，單位為每秒千位元。這是影響輸出檔案大小與影片品質的關鍵因素：位元速率越高，影片品質越好，輸出檔案也越大；反之亦然。</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>影格速率</translation>
    </message>
    <message>
        <source>Set how many frames should be displayed per second (FPS). Higher frame rate increases the smoothness when played back, and usually 25--30 frame per second can provide you with a very good viewing experience.</source>
        <translation>設定每秒顯示的影格數 (FPS)。影格速率越高，播放越流暢；通常每秒 25～30 格即可提供很好的觀賞體驗。</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>長寬比</translation>
    </message>
    <message>
        <source>Set width to height ratio according to the screen aspect of your playback device . (4:3, 16:9 or 1.3333, 1.7777).</source>
        <translation>依據播放裝置的螢幕比例設定寬度與高度的比例（4:3、16:9 或 1.3333、1.7777）。</translation>
    </message>
    <message>
        <source>Same Quality</source>
        <translation>與來源相同品質</translation>
    </message>
    <message>
        <source>This function enables you to get good output video quality as the source. (Sometimes this function may bring you a large output file, or make the converting time pretty long.)</source>
        <translation>此功能可讓輸出影片獲得與來源同樣好的品質。（有時可能會產生較大的輸出檔案，或使轉換時間變得相當長。）</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>Select zoom mode, that is how to deal with the blank edge when the aspect of the source and the destination is different.</source>
        <translation>選擇縮放模式，也就是來源與目的地的長寬比不同時，如何處理空白邊緣。</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message>
        <source>Audio options</source>
        <translation>音訊選項</translation>
    </message>
    <message>
        <source>Audio Codec</source>
        <translation>音訊編解碼器</translation>
    </message>
    <message>
        <source>Set the audio codec (methods of compression for digital audio, e.g., MP3, PCM or AC3) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>設定編碼引擎使用的音訊編解碼器（數位音訊的壓縮方式，例如 MP3、PCM 或 AC3）。通常與您選擇的輸出格式有關。</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>音訊位元速率</translation>
    </message>
    <message>
        <source>Set audio bitrate (in kbit/s)</source>
        <translation>設定音訊位元速率（單位為 kbit/s）</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>取樣率</translation>
    </message>
    <message>
        <source>Set the audio sampling frequency (the number of samples per second) (default = 44100 Hz).</source>
        <translation>設定音訊取樣頻率，也就是每秒的取樣數（預設值 = 44100 Hz）。</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>聲道</translation>
    </message>
    <message>
        <source>Set number of audio channels, 1(Mono), 2(Stereo) and 5.1(Dolby Digital) are commonly used for general digital audio.</source>
        <translation>設定音訊聲道數。一般數位音訊常用 1（單聲道）、2（立體聲）與 5.1（Dolby Digital）。</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Set the output volume.</source>
        <translation>設定輸出音量。</translation>
    </message>
    <message>
        <source>Disable Audio</source>
        <translation>停用音訊</translation>
    </message>
    <message>
        <source>Disable audio</source>
        <translation>輸出檔案不含音訊</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Summary of the file</source>
        <translation>檔案的摘要資訊</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>Set the title</source>
        <translation>設定標題</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Set the author</source>
        <translation>設定作者</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>版權</translation>
    </message>
    <message>
        <source>Set the copyright</source>
        <translation>設定版權資訊</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>註解</translation>
    </message>
    <message>
        <source>Set the comment</source>
        <translation>設定註解</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>專輯</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>作曲者</translation>
    </message>
    <message>
        <source>Orig. Artist</source>
        <translation>原演出者</translation>
    </message>
    <message>
        <source>Encoded by</source>
        <translation>編碼者</translation>
    </message>
    <message>
        <source>Url</source>
        <translation>網址</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年份</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>Expert options</source>
        <translation>進階選項</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>參數</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Title_%1</source>
        <translation>標題_%1</translation>
    </message>
    <message>
        <source>Merge %1</source>
        <translation>合併 %1</translation>
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
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>Open DVD...</source>
        <translation>開啟 DVD...</translation>
    </message>
    <message>
        <source>Open DVD Folder...</source>
        <translation>開啟 DVD 資料夾...</translation>
    </message>
    <message>
        <source>Open IFO Files...</source>
        <translation>開啟 IFO 檔案...</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>載入專案...</translation>
    </message>
    <message>
        <source>Save Project...</source>
        <translation>儲存專案...</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>專案另存新檔...</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>搜尋設定檔...</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>屬性...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重新命名</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
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
        <translation>移至頂端</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>移至底端</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Remove Selected Item(s)</source>
        <translation>移除選取的項目</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>全部清除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>全部不選</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>反向選取</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>全部勾選</translation>
    </message>
    <message>
        <source>Uncheck All</source>
        <translation>全部取消勾選</translation>
    </message>
    <message>
        <source>Invert Check</source>
        <translation>反向勾選</translation>
    </message>
    <message>
        <source>Merge Selected into One</source>
        <translation>將選取的項目合併為一個</translation>
    </message>
    <message>
        <source>Split by Chapter</source>
        <translation>依章節分割</translation>
    </message>
    <message>
        <source>Add Output Profile...</source>
        <translation>新增輸出設定檔...</translation>
    </message>
    <message>
        <source>Apply Profile to All</source>
        <translation>將設定檔套用至全部</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>播放(&amp;P)</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>播放/暫停</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一個</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一個</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>Open Snapshot Folder</source>
        <translation>開啟快照資料夾</translation>
    </message>
    <message>
        <source>Change Snapshot Folder</source>
        <translation>變更快照資料夾</translation>
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
        <translation>全螢幕</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation>剪輯(&amp;C)</translation>
    </message>
    <message>
        <source>Trim...</source>
        <translation>修剪...</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>裁切...</translation>
    </message>
    <message>
        <source>Smart Crop</source>
        <translation>智慧裁切</translation>
    </message>
    <message>
        <source>Watermark...</source>
        <translation>浮水印...</translation>
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
        <translation>音軌...</translation>
    </message>
    <message>
        <source>Subtitle...</source>
        <translation>字幕...</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>動作(&amp;A)</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>轉換勾選的項目</translation>
    </message>
    <message>
        <source>Pause Checked Item(s)</source>
        <translation>暫停勾選的項目</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>停止勾選的項目</translation>
    </message>
    <message>
        <source>Open Source File Location</source>
        <translation>開啟來源檔案位置</translation>
    </message>
    <message>
        <source>Open Output File Location</source>
        <translation>開啟輸出檔案位置</translation>
    </message>
    <message>
        <source>Post Task Actions</source>
        <translation>工作完成後動作</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>不執行任何動作</translation>
    </message>
    <message>
        <source>Exit Program</source>
        <translation>結束程式</translation>
    </message>
    <message>
        <source>Shut Down</source>
        <translation>關機</translation>
    </message>
    <message>
        <source>Log Off</source>
        <translation>登出</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>休眠</translation>
    </message>
    <message>
        <source>Stand By</source>
        <translation>待命</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重新啟動</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>選項(&amp;O)</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>偏好設定...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
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
        <translation>關閉</translation>
    </message>
    <message>
        <source>&amp;Open DVD</source>
        <translation>開啟 DVD(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Trim</source>
        <translation>修剪(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>裁切(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation>效果(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Merge</source>
        <translation>合併(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Preference</source>
        <translation>偏好設定(&amp;P)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <translation>設定檔(&amp;P)：</translation>
    </message>
    <message>
        <source>Setting...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>另存新檔...</translation>
    </message>
    <message>
        <source>&amp;Destination:</source>
        <translation>目的地(&amp;D)：</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>瀏覽...</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>開啟資料夾</translation>
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
        <translation>工作</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>設定檔</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目的地</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>整體進度</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Open Files...</source>
        <translation>開啟檔案...</translation>
    </message>
    <message>
        <source>Open Folder...</source>
        <translation>開啟資料夾...</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>增大</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>減小</translation>
    </message>
    <message>
        <source>Convert Selected Item(s)</source>
        <translation>轉換選定項目</translation>
    </message>
    <message>
        <source>Pause Selected Item(s)</source>
        <translation>暫停選定項目</translation>
    </message>
    <message>
        <source>Stop Selected Item(s)</source>
        <translation>停止選定項目</translation>
    </message>
    <message>
        <source>Convert All Item(s)</source>
        <translation>轉換所有項目</translation>
    </message>
    <message>
        <source>Pause All Item(s)</source>
        <translation>暫停所有項目</translation>
    </message>
    <message>
        <source>Stop All Item(s)</source>
        <translation>停止所有項目</translation>
    </message>
</context>
<context>
    <name>saveAsDlg</name>
    <message>
        <source>Save As</source>
        <translation>另存新檔</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Save As:</source>
        <translation>另存新檔：</translation>
    </message>
</context>
<context>
    <name>splash</name>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2。保留所有權利。</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>版本：%1</translation>
    </message>
</context>
</TS>
