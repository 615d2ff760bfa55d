<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
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
        <translation>元のフレームを表示</translation>
    </message>
    <message>
        <source>Display Output Frame</source>
        <translation>出力フレームを表示</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>名前を付けて保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>名前の変更(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>はじめに</translation>
    </message>
    <message>
        <source>1. Click &quot;%1 Open DVD %2&quot; to Open DVD.</source>
        <translation>1. 「%1 DVDを開く %2」をクリックしてDVDを開きます。</translation>
    </message>
    <message>
        <source>2. Click &quot;%1 Trim&quot; or &quot;%2 Crop&quot; to edit video file.</source>
        <translation>2. 「%1 カット」または「%2 クロップ」をクリックしてビデオファイルを編集します。</translation>
    </message>
    <message>
        <source>3. Select output format from the &quot;Profile&quot; list.</source>
        <translation>3. 「プロファイル」リストから出力形式を選択します。</translation>
    </message>
    <message>
        <source>4. Click &quot;%1&quot; to convert.</source>
        <translation>4. 「%1」をクリックして変換します。</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?</source>
        <translation>変換を停止してもよろしいですか?</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>元に戻す (縮小)</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Please Select Output Folder</source>
        <translation>出力フォルダーを選択してください</translation>
    </message>
    <message>
        <source>Please select a DVD drive or a DVD folder.</source>
        <translation>DVD ドライブまたは DVD フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Open IFO Files</source>
        <translation>IFO ファイルを開く</translation>
    </message>
    <message>
        <source>IFO Files (*.ifo *.IFO)</source>
        <translation>IFO ファイル (*.ifo *.IFO)</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込み中...</translation>
    </message>
    <message>
        <source>The IFO File is invalid.
%1</source>
        <translation>IFO ファイルが無効です。
%1</translation>
    </message>
    <message>
        <source>Following files can not be loaded(They are not valid media files or their formats are not supported):</source>
        <translation>次のファイルを読み込めません (有効なメディア ファイルではないか、形式がサポートされていません):</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>サポートされるすべての形式</translation>
    </message>
    <message>
        <source>Supported Video</source>
        <translation>サポートされるビデオ</translation>
    </message>
    <message>
        <source>Supported Audio</source>
        <translation>サポートされるオーディオ</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>Select a Folder</source>
        <translation>フォルダーの選択</translation>
    </message>
    <message>
        <source>Audio Tracks</source>
        <translation>音声トラック</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Source file %1 not found!</source>
        <translation>ソースファイル %1 が見つかりません。</translation>
    </message>
    <message>
        <source>Can not save the image.</source>
        <translation>画像を保存できません。</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>チェックした項目を変換</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>チェックした項目を停止</translation>
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
        <translation>経過時間: %1 残り時間: %2 進行状況: </translation>
    </message>
    <message>
        <source>Conversion finished</source>
        <translation>変換が完了しました</translation>
    </message>
    <message>
        <source>Succeeded: %1, failed: %2</source>
        <translation>成功: %1、失敗: %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Your profiles could not be saved.
%1</source>
        <translation>ユーザー プロファイルを保存できませんでした。
%1</translation>
    </message>
    <message>
        <source>Are you sure to apply current profile settings to all items?</source>
        <translation>現在のプロファイルの設定をすべての項目に適用しますか?</translation>
    </message>
</context>
<context>
    <name>CPlayPauseButton</name>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
</context>
<context>
    <name>CProfileCombo</name>
    <message>
        <source>Profile</source>
        <translation>プロファイル</translation>
    </message>
</context>
<context>
    <name>CProfileMenu</name>
    <message>
        <source>Recommended</source>
        <translation>おすすめ</translation>
    </message>
</context>
<context>
    <name>CSearchLineEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>検索をクリア</translation>
    </message>
</context>
<context>
    <name>CustomItemWidget</name>
    <message>
        <source>Convert This Item</source>
        <translation>この項目を変換</translation>
    </message>
    <message>
        <source>Audio Track</source>
        <translation>音声トラック</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Output Name</source>
        <translation>出力名</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Stop Converting</source>
        <translation>変換を停止</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>残り時間</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>再生時間</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kbps</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Edit Audio</source>
        <translation>音声を編集</translation>
    </message>
    <message>
        <source>Edit Subtitle</source>
        <translation>字幕を編集</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>待機中...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Pending...</source>
        <translation>保留中...</translation>
    </message>
    <message>
        <source>Succeed</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>折りたたむ</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?
Some of the unfinished files cannot be played properly.</source>
        <translation>変換を停止してもよろしいですか？
未完成のファイルの一部は正しく再生できません。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>再開</translation>
    </message>
</context>
<context>
    <name>PlayerScreen</name>
    <message>
        <source>Video</source>
        <translation>ビデオ</translation>
    </message>
</context>
<context>
    <name>Profile</name>
    <message>
        <source>User Defined</source>
        <translation>ユーザー定義</translation>
    </message>
    <message>
        <source>General Video</source>
        <translation>一般ビデオ</translation>
    </message>
    <message>
        <source>General Audio</source>
        <translation>一般オーディオ</translation>
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
        <translation>HD ビデオ</translation>
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
        <translation>携帯電話</translation>
    </message>
    <message>
        <source>Picture and Animation</source>
        <translation>画像とアニメーション</translation>
    </message>
    <message>
        <source>Portable Multimedia Device</source>
        <translation>ポータブルマルチメディア機器</translation>
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
        <translation>Xbox HD ビデオ</translation>
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
        <translation>Advanced Streaming Format。Windows Media のコンテナー形式です。</translation>
    </message>
    <message>
        <source>AVI - Audio-Video Interleaved</source>
        <translation>AVI - Audio-Video Interleaved</translation>
    </message>
    <message>
        <source>Audio-Video Interleaved, the classic Windows video format.</source>
        <translation>Audio-Video Interleaved。Windows の定番のビデオ形式です。</translation>
    </message>
    <message>
        <source>DivX Video</source>
        <translation>DivX ビデオ</translation>
    </message>
    <message>
        <source>DivX video in an AVI container.</source>
        <translation>AVI コンテナーに格納した DivX ビデオ。</translation>
    </message>
    <message>
        <source>DV - Digital Video format</source>
        <translation>DV - デジタルビデオ形式</translation>
    </message>
    <message>
        <source>Digital Video format of camcorders.</source>
        <translation>ビデオカメラで使われるデジタルビデオ形式。</translation>
    </message>
    <message>
        <source>DVD Video</source>
        <translation>DVD ビデオ</translation>
    </message>
    <message>
        <source>MPEG-2 video for DVD players.</source>
        <translation>DVD プレーヤー用の MPEG-2 ビデオ。</translation>
    </message>
    <message>
        <source>MOV - QuickTime</source>
        <translation>MOV - QuickTime</translation>
    </message>
    <message>
        <source>QuickTime movie format.</source>
        <translation>QuickTime ムービー形式。</translation>
    </message>
    <message>
        <source>MPEG4 Video</source>
        <translation>MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>MPEG-4 video format.</source>
        <translation>MPEG-4 ビデオ形式。</translation>
    </message>
    <message>
        <source>MPEG1 Video</source>
        <translation>MPEG1 ビデオ</translation>
    </message>
    <message>
        <source>MPEG-1 video format.</source>
        <translation>MPEG-1 ビデオ形式。</translation>
    </message>
    <message>
        <source>MPEG2 Video</source>
        <translation>MPEG2 ビデオ</translation>
    </message>
    <message>
        <source>MPEG-2 video format.</source>
        <translation>MPEG-2 ビデオ形式。</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC Video</source>
        <translation>H.264/MPEG-4 AVC ビデオ</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC video format.</source>
        <translation>H.264/MPEG-4 AVC ビデオ形式。</translation>
    </message>
    <message>
        <source>RM - Real Video</source>
        <translation>RM - Real Video</translation>
    </message>
    <message>
        <source>RealVideo streaming format.</source>
        <translation>RealVideo ストリーミング形式。</translation>
    </message>
    <message>
        <source>VCD Video</source>
        <translation>VCD ビデオ</translation>
    </message>
    <message>
        <source>MPEG-1 video for Video CD players.</source>
        <translation>ビデオ CD プレーヤー用の MPEG-1 ビデオ。</translation>
    </message>
    <message>
        <source>WMV - Windows Media Video</source>
        <translation>WMV - Windows Media Video</translation>
    </message>
    <message>
        <source>Windows Media Video format.</source>
        <translation>Windows Media Video 形式。</translation>
    </message>
    <message>
        <source>Xvid Video</source>
        <translation>Xvid ビデオ</translation>
    </message>
    <message>
        <source>Xvid video in an AVI container.</source>
        <translation>AVI コンテナーに格納した Xvid ビデオ。</translation>
    </message>
    <message>
        <source>Matroska Video</source>
        <translation>Matroska ビデオ</translation>
    </message>
    <message>
        <source>Matroska video format.</source>
        <translation>Matroska ビデオ形式。</translation>
    </message>
    <message>
        <source>WebM Video</source>
        <translation>WebM ビデオ</translation>
    </message>
    <message>
        <source>WebM video format for the web.</source>
        <translation>Web 向けの WebM ビデオ形式。</translation>
    </message>
    <message>
        <source>AC3 - Dolby Digital AC-3</source>
        <translation>AC3 - Dolby Digital AC-3</translation>
    </message>
    <message>
        <source>Dolby Digital AC-3 audio format.</source>
        <translation>Dolby Digital AC-3 オーディオ形式。</translation>
    </message>
    <message>
        <source>AIFF - Audio Interchange File Format</source>
        <translation>AIFF - Audio Interchange File Format</translation>
    </message>
    <message>
        <source>Audio Interchange File Format, uncompressed audio.</source>
        <translation>Audio Interchange File Format。非圧縮のオーディオです。</translation>
    </message>
    <message>
        <source>ALAC - Apple Lossless Audio Codec</source>
        <translation>ALAC - Apple Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Apple Lossless audio format.</source>
        <translation>Apple Lossless オーディオ形式。</translation>
    </message>
    <message>
        <source>FLAC - Free Lossless Audio Codec</source>
        <translation>FLAC - Free Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec format.</source>
        <translation>Free Lossless Audio Codec 形式 (可逆圧縮)。</translation>
    </message>
    <message>
        <source>SUN AU Format</source>
        <translation>SUN AU 形式</translation>
    </message>
    <message>
        <source>Sun AU audio format.</source>
        <translation>Sun AU オーディオ形式。</translation>
    </message>
    <message>
        <source>M4A - MPEG-4 Audio</source>
        <translation>M4A - MPEG-4 オーディオ</translation>
    </message>
    <message>
        <source>MPEG-4 Audio format.</source>
        <translation>MPEG-4 オーディオ形式。</translation>
    </message>
    <message>
        <source>MP2 - MPEG Layer-2 Audio</source>
        <translation>MP2 - MPEG Layer-2 オーディオ</translation>
    </message>
    <message>
        <source>MPEG Layer-2 audio format.</source>
        <translation>MPEG Layer-2 オーディオ形式。</translation>
    </message>
    <message>
        <source>MP3 - MPEG Layer-3 Audio</source>
        <translation>MP3 - MPEG Layer-3 オーディオ</translation>
    </message>
    <message>
        <source>MPEG Layer-3 audio format.</source>
        <translation>MPEG Layer-3 オーディオ形式。</translation>
    </message>
    <message>
        <source>OGG - Ogg Vorbis Audio</source>
        <translation>OGG - Ogg Vorbis オーディオ</translation>
    </message>
    <message>
        <source>Ogg Vorbis audio format.</source>
        <translation>Ogg Vorbis オーディオ形式。</translation>
    </message>
    <message>
        <source>RA - RealAudio</source>
        <translation>RA - RealAudio</translation>
    </message>
    <message>
        <source>RealAudio streaming format.</source>
        <translation>RealAudio ストリーミング形式。</translation>
    </message>
    <message>
        <source>WAV - Waveform Audio</source>
        <translation>WAV - Waveform オーディオ</translation>
    </message>
    <message>
        <source>Waveform audio format, uncompressed.</source>
        <translation>非圧縮の Waveform オーディオ形式。</translation>
    </message>
    <message>
        <source>WMA - Windows Media Audio</source>
        <translation>WMA - Windows Media Audio</translation>
    </message>
    <message>
        <source>Windows Media Audio format.</source>
        <translation>Windows Media Audio 形式。</translation>
    </message>
    <message>
        <source>Android MPEG4 Video</source>
        <translation>Android MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Android</source>
        <translation>Android 向けに最適化した MPEG4 プロファイル</translation>
    </message>
    <message>
        <source>Samsung Galaxy S3 H.264 Video</source>
        <translation>Samsung Galaxy S3 H.264 ビデオ</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Galaxy S3</source>
        <translation>Galaxy S3 向けに最適化した H.264/MPEG-4 AVC プロファイル</translation>
    </message>
    <message>
        <source>Samsung Galaxy Tab MPEG4 Video</source>
        <translation>Samsung Galaxy Tab MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Galaxy Tab</source>
        <translation>Galaxy Tab 向けに最適化した MPEG4 プロファイル</translation>
    </message>
    <message>
        <source>Apple TV H.264 Video</source>
        <translation>Apple TV H.264 ビデオ</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV</source>
        <translation>Apple TV 向けに最適化した H.264/MPEG-4 AVC プロファイル</translation>
    </message>
    <message>
        <source>Apple TV H.264 HD Video</source>
        <translation>Apple TV H.264 HD ビデオ</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV HD</source>
        <translation>Apple TV HD 向けに最適化した H.264/MPEG-4 AVC プロファイル</translation>
    </message>
    <message>
        <source>Apple TV 3 H.264 1080P Video</source>
        <translation>Apple TV 3 H.264 1080P ビデオ</translation>
    </message>
    <message>
        <source>Apple TV MPEG4 Video</source>
        <translation>Apple TV MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Apple TV</source>
        <translation>Apple TV 向けに最適化した MPEG4 プロファイル</translation>
    </message>
    <message>
        <source>HD ASF Video</source>
        <translation>HD ASF ビデオ</translation>
    </message>
    <message>
        <source>ASF profile optimized for HD players</source>
        <translation>HD プレーヤー向けに最適化した ASF プロファイル</translation>
    </message>
    <message>
        <source>HD AVI Video</source>
        <translation>HD AVI ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for HD players</source>
        <translation>HD プレーヤー向けに最適化した MPEG4 AVI プロファイル</translation>
    </message>
    <message>
        <source>HD H.264/MPEG-4 AVC Video</source>
        <translation>HD H.264/MPEG-4 AVC ビデオ</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for HD players</source>
        <translation>HD プレーヤー向けに最適化した H.264/MPEG-4 AVC プロファイル</translation>
    </message>
    <message>
        <source>HD Quick Time Video</source>
        <translation>HD QuickTime ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for HD players</source>
        <translation>HD プレーヤー向けに最適化した MPEG4 プロファイル</translation>
    </message>
    <message>
        <source>MPEG2-PS HD Video</source>
        <translation>MPEG2-PS HD ビデオ</translation>
    </message>
    <message>
        <source>MPEG2 profile optimized for HD players</source>
        <translation>HD プレーヤー向けに最適化した MPEG2 プロファイル</translation>
    </message>
    <message>
        <source>MPEG2-TS HD Video</source>
        <translation>MPEG2-TS HD ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 HD Video</source>
        <translation>MPEG4 HD ビデオ</translation>
    </message>
    <message>
        <source>RM HD Video</source>
        <translation>RM HD ビデオ</translation>
    </message>
    <message>
        <source>RealVideo profile optimized for HD players</source>
        <translation>HD プレーヤー向けに最適化した RealVideo プロファイル</translation>
    </message>
    <message>
        <source>HD WMV Video</source>
        <translation>HD WMV ビデオ</translation>
    </message>
    <message>
        <source>WMV profile optimized for HD players</source>
        <translation>HD プレーヤー向けに最適化した WMV プロファイル</translation>
    </message>
    <message>
        <source>XVID HD Video</source>
        <translation>XVID HD ビデオ</translation>
    </message>
    <message>
        <source>Xvid profile optimized for HD players</source>
        <translation>HD プレーヤー向けに最適化した Xvid プロファイル</translation>
    </message>
    <message>
        <source>iPad H.264 Video</source>
        <translation>iPad H.264 ビデオ</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPad</source>
        <translation>iPad 向けに最適化した H.264/MPEG-4 AVC プロファイル</translation>
    </message>
    <message>
        <source>iPad H.264 HD Video</source>
        <translation>iPad H.264 HD ビデオ</translation>
    </message>
    <message>
        <source>iPad MPEG4 Video</source>
        <translation>iPad MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPad</source>
        <translation>iPad 向けに最適化した MPEG4 プロファイル</translation>
    </message>
    <message>
        <source>iPad 2 H.264 Video</source>
        <translation>iPad 2 H.264 ビデオ</translation>
    </message>
    <message>
        <source>iPad 2 H.264 HD Video</source>
        <translation>iPad 2 H.264 HD ビデオ</translation>
    </message>
    <message>
        <source>iPad 2 MPEG4 Video</source>
        <translation>iPad 2 MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>iPad 3 1080P Video</source>
        <translation>iPad 3 1080P ビデオ</translation>
    </message>
    <message>
        <source>iPad mini H.264 Video</source>
        <translation>iPad mini H.264 ビデオ</translation>
    </message>
    <message>
        <source>iPhone H.264 Video</source>
        <translation>iPhone H.264 ビデオ</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPhone</source>
        <translation>iPhone 向けに最適化した H.264/MPEG-4 AVC プロファイル</translation>
    </message>
    <message>
        <source>iPhone MPEG4 Video</source>
        <translation>iPhone MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPhone</source>
        <translation>iPhone 向けに最適化した MPEG4 プロファイル</translation>
    </message>
    <message>
        <source>iPhone 4 H.264 Video</source>
        <translation>iPhone 4 H.264 ビデオ</translation>
    </message>
    <message>
        <source>iPhone 4 MPEG4 Video</source>
        <translation>iPhone 4 MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>iPhone 5 H.264 Video</source>
        <translation>iPhone 5 H.264 ビデオ</translation>
    </message>
    <message>
        <source>iPod H.264 Video</source>
        <translation>iPod H.264 ビデオ</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod</source>
        <translation>iPod 向けに最適化した H.264/MPEG-4 AVC プロファイル</translation>
    </message>
    <message>
        <source>iPod MPEG4 Video</source>
        <translation>iPod MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod</source>
        <translation>iPod 向けに最適化した MPEG4 プロファイル</translation>
    </message>
    <message>
        <source>iPod touch H.264 Video</source>
        <translation>iPod touch H.264 ビデオ</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod touch</source>
        <translation>iPod touch 向けに最適化した H.264/MPEG-4 AVC プロファイル</translation>
    </message>
    <message>
        <source>iPod touch MPEG4 Video</source>
        <translation>iPod touch MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod touch</source>
        <translation>iPod touch 向けに最適化した MPEG4 プロファイル</translation>
    </message>
    <message>
        <source>iPod touch 4 H.264 Video</source>
        <translation>iPod touch 4 H.264 ビデオ</translation>
    </message>
    <message>
        <source>iPod touch 4 MPEG4 Video</source>
        <translation>iPod touch 4 MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Stereo</source>
        <translation>携帯電話用 3GP ビデオ - ステレオ</translation>
    </message>
    <message>
        <source>3GP profile optimized for mobile phones</source>
        <translation>携帯電話向けに最適化した 3GP プロファイル</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Mono</source>
        <translation>携帯電話用 3GP ビデオ - モノラル</translation>
    </message>
    <message>
        <source>BlackBerry 3GP Video</source>
        <translation>BlackBerry 3GP ビデオ</translation>
    </message>
    <message>
        <source>BlackBerry AVI Video</source>
        <translation>BlackBerry AVI ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for mobile phones</source>
        <translation>携帯電話向けに最適化した MPEG4 AVI プロファイル</translation>
    </message>
    <message>
        <source>BlackBerry MPEG4 Video</source>
        <translation>BlackBerry MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for mobile phones</source>
        <translation>携帯電話向けに最適化した MPEG4 プロファイル</translation>
    </message>
    <message>
        <source>WMV Video for Mobile Phone</source>
        <translation>携帯電話用 WMV ビデオ</translation>
    </message>
    <message>
        <source>WMV profile optimized for mobile phones</source>
        <translation>携帯電話向けに最適化した WMV プロファイル</translation>
    </message>
    <message>
        <source>FLV - Flash Video Format</source>
        <translation>FLV - Flash ビデオ形式</translation>
    </message>
    <message>
        <source>Flash video format for web pages.</source>
        <translation>Web ページ用の Flash ビデオ形式。</translation>
    </message>
    <message>
        <source>Picture - BMP format</source>
        <translation>画像 - BMP 形式</translation>
    </message>
    <message>
        <source>Pictures captured from the video as BMP files.</source>
        <translation>ビデオから取り込んだ画像を BMP ファイルとして保存します。</translation>
    </message>
    <message>
        <source>Picture - GIF Animation format</source>
        <translation>画像 - GIF アニメーション形式</translation>
    </message>
    <message>
        <source>An animated GIF picture made from the video.</source>
        <translation>ビデオから作成するアニメーション GIF 画像。</translation>
    </message>
    <message>
        <source>Picture - JPEG format</source>
        <translation>画像 - JPEG 形式</translation>
    </message>
    <message>
        <source>Pictures captured from the video as JPEG files.</source>
        <translation>ビデオから取り込んだ画像を JPEG ファイルとして保存します。</translation>
    </message>
    <message>
        <source>Picture - PNG format</source>
        <translation>画像 - PNG 形式</translation>
    </message>
    <message>
        <source>Pictures captured from the video as PNG files.</source>
        <translation>ビデオから取り込んだ画像を PNG ファイルとして保存します。</translation>
    </message>
    <message>
        <source>SWF - SWF Format</source>
        <translation>SWF - SWF 形式</translation>
    </message>
    <message>
        <source>Shockwave Flash animation format.</source>
        <translation>Shockwave Flash アニメーション形式。</translation>
    </message>
    <message>
        <source>Archos MPEG4</source>
        <translation>Archos MPEG4</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for portable players</source>
        <translation>ポータブルプレーヤー向けに最適化した MPEG4 プロファイル</translation>
    </message>
    <message>
        <source>Creative ZEN MPEG4 Video</source>
        <translation>Creative ZEN MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>iRiver MPEG4 Video</source>
        <translation>iRiver MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>PS3 H.264 Video</source>
        <translation>PS3 H.264 ビデオ</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for PS3</source>
        <translation>PS3 向けに最適化した H.264/MPEG-4 AVC プロファイル</translation>
    </message>
    <message>
        <source>PSP MPEG-4 Video</source>
        <translation>PSP MPEG-4 ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for PSP</source>
        <translation>PSP 向けに最適化した MPEG4 プロファイル</translation>
    </message>
    <message>
        <source>Xbox360 H.264 Video</source>
        <translation>Xbox360 H.264 ビデオ</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Xbox360</source>
        <translation>Xbox360 向けに最適化した H.264/MPEG-4 AVC プロファイル</translation>
    </message>
    <message>
        <source>Xbox360 MPEG4 Video</source>
        <translation>Xbox360 MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Xbox360</source>
        <translation>Xbox360 向けに最適化した MPEG4 プロファイル</translation>
    </message>
    <message>
        <source>Xbox360 WMV Video</source>
        <translation>Xbox360 WMV ビデオ</translation>
    </message>
    <message>
        <source>WMV profile optimized for Xbox360</source>
        <translation>Xbox360 向けに最適化した WMV プロファイル</translation>
    </message>
    <message>
        <source>Zune MPEG4 Video</source>
        <translation>Zune MPEG4 ビデオ</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Zune</source>
        <translation>Zune 向けに最適化した MPEG4 プロファイル</translation>
    </message>
</context>
<context>
    <name>ProfileGroupLoader</name>
    <message>
        <source>Untitled</source>
        <translation>無題</translation>
    </message>
</context>
<context>
    <name>ProfileMenu</name>
    <message>
        <source>Previous group</source>
        <translation>前のグループ</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>次のグループ</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>プロファイルを検索</translation>
    </message>
    <message>
        <source>Previous profile</source>
        <translation>前のプロファイル</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>プロファイル一覧</translation>
    </message>
    <message>
        <source>Next profile</source>
        <translation>次のプロファイル</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>プロファイルを検索...</translation>
    </message>
</context>
<context>
    <name>QtColorComboBox</name>
    <message>
        <source>More...</source>
        <translation>その他...</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黒</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>暗い赤</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>暗い緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>暗い青</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation>暗いシアン</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>暗いマゼンタ</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>暗い黄</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>暗い灰色</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>明るい灰色</translation>
    </message>
    <message>
        <source>User color %1</source>
        <translation>ユーザー色 %1</translation>
    </message>
    <message>
        <source>User Color 99</source>
        <translation>ユーザー色 99</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>プロパティ一覧</translation>
    </message>
</context>
<context>
    <name>QxLanguage</name>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
</context>
<context>
    <name>QxSkin</name>
    <message>
        <source>&amp;Skin</source>
        <translation>スキン(&amp;S)</translation>
    </message>
</context>
<context>
    <name>SettingDialog</name>
    <message>
        <source>Advanced Settings</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>シンプル</translation>
    </message>
    <message>
        <source>Video Size:</source>
        <translation>ビデオサイズ:</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>ビデオサイズ</translation>
    </message>
    <message>
        <source>Video Quality:</source>
        <translation>ビデオ品質:</translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation>ビデオ品質</translation>
    </message>
    <message>
        <source>Audio Quality:</source>
        <translation>オーディオ品質:</translation>
    </message>
    <message>
        <source>Audio Quality</source>
        <translation>オーディオ品質</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Apply To All</source>
        <translation>すべてに適用</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Picture Format</source>
        <translation>画像形式</translation>
    </message>
    <message>
        <source>Picture format.</source>
        <translation>取り込んだ画像のファイル形式。</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>Select how many seconds to capture one picture.</source>
        <translation>何秒ごとに画像を 1 枚取り込むかを指定します。</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Video options</source>
        <translation>ビデオのオプション</translation>
    </message>
    <message>
        <source>Video Codec</source>
        <translation>ビデオコーデック</translation>
    </message>
    <message>
        <source>Set the video codec (methods of compression for digital videos, e.g., MPEG-4, H.264 or WMV) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>エンコードエンジンが使用するビデオコーデック (デジタルビデオの圧縮方式。MPEG-4、H.264、WMV など) を設定します。通常は選択した出力形式によって決まります。</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>ビデオサイズ</translation>
    </message>
    <message>
        <source>Set frame size. The format is &apos;width x height&apos; like 320x240, 640x480 or 1920x1080 pixels. You can choose an similar size for your playback device screen resolution.</source>
        <translation>フレームサイズを設定します。「幅 x 高さ」の形式で、320x240、640x480、1920x1080 ピクセルのように指定します。再生デバイスの画面解像度に近いサイズを選んでください。</translation>
    </message>
    <message>
        <source>Video Bitrate</source>
        <translation>ビデオビットレート</translation>
    </message>
    <message>
        <source>Set the video bit rate in kilobit per second. This is the key factor that is related to the output file size and video quality -- the larger the bit rate, the better the video quality and the bigger the output file you will get, and vice versa.</source>
        <translation>ビデオのビットレートをキロビット毎秒で設定します。出力ファイルのサイズと画質を左右する最も重要な要素で、ビットレートが大きいほど画質は向上し、出力ファイルも大きくなります。小さくするとその逆になります。</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>Set how many frames should be displayed per second (FPS). Higher frame rate increases the smoothness when played back, and usually 25--30 frame per second can provide you with a very good viewing experience.</source>
        <translation>1 秒間に表示するフレーム数 (FPS) を設定します。フレームレートが高いほど再生が滑らかになります。通常は 25～30 フレーム/秒で十分に快適に視聴できます。</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>アスペクト比</translation>
    </message>
    <message>
        <source>Set width to height ratio according to the screen aspect of your playback device . (4:3, 16:9 or 1.3333, 1.7777).</source>
        <translation>再生デバイスの画面に合わせて、幅と高さの比率を設定します (4:3、16:9 または 1.3333、1.7777)。</translation>
    </message>
    <message>
        <source>Same Quality</source>
        <translation>ソースと同画質</translation>
    </message>
    <message>
        <source>This function enables you to get good output video quality as the source. (Sometimes this function may bring you a large output file, or make the converting time pretty long.)</source>
        <translation>ソースと同等の画質でビデオを出力します。(出力ファイルが大きくなったり、変換にかなり時間がかかったりする場合があります。)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>Select zoom mode, that is how to deal with the blank edge when the aspect of the source and the destination is different.</source>
        <translation>ズームモードを選択します。ソースと出力先のアスペクト比が異なるときに生じる余白の扱い方を決めます。</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Audio options</source>
        <translation>音声のオプション</translation>
    </message>
    <message>
        <source>Audio Codec</source>
        <translation>音声コーデック</translation>
    </message>
    <message>
        <source>Set the audio codec (methods of compression for digital audio, e.g., MP3, PCM or AC3) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>エンコードエンジンが使用する音声コーデック (デジタル音声の圧縮方式。MP3、PCM、AC3 など) を設定します。通常は選択した出力形式によって決まります。</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>音声ビットレート</translation>
    </message>
    <message>
        <source>Set audio bitrate (in kbit/s)</source>
        <translation>音声のビットレートを設定します (kbit/s 単位)</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>サンプルレート</translation>
    </message>
    <message>
        <source>Set the audio sampling frequency (the number of samples per second) (default = 44100 Hz).</source>
        <translation>音声のサンプリング周波数 (1 秒あたりのサンプル数) を設定します (既定値 = 44100 Hz)。</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Set number of audio channels, 1(Mono), 2(Stereo) and 5.1(Dolby Digital) are commonly used for general digital audio.</source>
        <translation>音声のチャンネル数を設定します。一般的なデジタル音声では 1 (モノラル)、2 (ステレオ)、5.1 (Dolby Digital) がよく使われます。</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Set the output volume.</source>
        <translation>出力の音量を設定します。</translation>
    </message>
    <message>
        <source>Disable Audio</source>
        <translation>音声を無効化</translation>
    </message>
    <message>
        <source>Disable audio</source>
        <translation>音声トラックなしで出力します</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Summary of the file</source>
        <translation>ファイルの概要情報</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Set the title</source>
        <translation>タイトルを設定します</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作成者</translation>
    </message>
    <message>
        <source>Set the author</source>
        <translation>作成者を設定します</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>著作権</translation>
    </message>
    <message>
        <source>Set the copyright</source>
        <translation>著作権情報を設定します</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>コメント</translation>
    </message>
    <message>
        <source>Set the comment</source>
        <translation>コメントを設定します</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>ジャンル</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>作曲者</translation>
    </message>
    <message>
        <source>Orig. Artist</source>
        <translation>オリジナルアーティスト</translation>
    </message>
    <message>
        <source>Encoded by</source>
        <translation>エンコード者</translation>
    </message>
    <message>
        <source>Url</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Expert options</source>
        <translation>上級者向けのオプション</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>パラメーター</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Title_%1</source>
        <translation>タイトル_%1</translation>
    </message>
    <message>
        <source>Merge %1</source>
        <translation>結合 %1</translation>
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
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Open DVD...</source>
        <translation>DVDを開く...</translation>
    </message>
    <message>
        <source>Open DVD Folder...</source>
        <translation>DVDフォルダーを開く...</translation>
    </message>
    <message>
        <source>Open IFO Files...</source>
        <translation>IFOファイルを開く...</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>プロジェクトを読み込む...</translation>
    </message>
    <message>
        <source>Save Project...</source>
        <translation>プロジェクトを保存...</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>プロジェクトに名前を付けて保存...</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>プロファイルを検索...</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>プロパティ...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>先頭へ移動</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>末尾へ移動</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Remove Selected Item(s)</source>
        <translation>選択した項目を削除</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>すべてクリア</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>選択解除</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>選択を反転</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>すべてチェック</translation>
    </message>
    <message>
        <source>Uncheck All</source>
        <translation>すべてのチェックを外す</translation>
    </message>
    <message>
        <source>Invert Check</source>
        <translation>チェックを反転</translation>
    </message>
    <message>
        <source>Merge Selected into One</source>
        <translation>選択した項目を1つに結合</translation>
    </message>
    <message>
        <source>Split by Chapter</source>
        <translation>チャプターごとに分割</translation>
    </message>
    <message>
        <source>Add Output Profile...</source>
        <translation>出力プロファイルを追加...</translation>
    </message>
    <message>
        <source>Apply Profile to All</source>
        <translation>プロファイルをすべてに適用</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>再生(&amp;P)</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>再生/一時停止</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>Open Snapshot Folder</source>
        <translation>スナップショットフォルダーを開く</translation>
    </message>
    <message>
        <source>Change Snapshot Folder</source>
        <translation>スナップショットフォルダーを変更</translation>
    </message>
    <message>
        <source>Snapshot Format</source>
        <translation>スナップショット形式</translation>
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
        <translation>全画面表示</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation>クリップ(&amp;C)</translation>
    </message>
    <message>
        <source>Trim...</source>
        <translation>カット...</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>クロップ...</translation>
    </message>
    <message>
        <source>Smart Crop</source>
        <translation>スマートクロップ</translation>
    </message>
    <message>
        <source>Watermark...</source>
        <translation>透かし...</translation>
    </message>
    <message>
        <source>Effect...</source>
        <translation>エフェクト...</translation>
    </message>
    <message>
        <source>Clear All Effects</source>
        <translation>すべてのエフェクトをクリア</translation>
    </message>
    <message>
        <source>Audio Track...</source>
        <translation>音声トラック...</translation>
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
        <translation>チェックした項目を変換</translation>
    </message>
    <message>
        <source>Pause Checked Item(s)</source>
        <translation>チェックした項目を一時停止</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>チェックした項目を停止</translation>
    </message>
    <message>
        <source>Open Source File Location</source>
        <translation>ソースファイルの場所を開く</translation>
    </message>
    <message>
        <source>Open Output File Location</source>
        <translation>出力ファイルの場所を開く</translation>
    </message>
    <message>
        <source>Post Task Actions</source>
        <translation>タスク完了後の動作</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>何もしない</translation>
    </message>
    <message>
        <source>Exit Program</source>
        <translation>プログラムを終了</translation>
    </message>
    <message>
        <source>Shut Down</source>
        <translation>シャットダウン</translation>
    </message>
    <message>
        <source>Log Off</source>
        <translation>ログオフ</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>休止状態</translation>
    </message>
    <message>
        <source>Stand By</source>
        <translation>スタンバイ</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>再起動</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>オプション(&amp;O)</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>環境設定...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
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
        <translation>閉じる</translation>
    </message>
    <message>
        <source>&amp;Open DVD</source>
        <translation>DVDを開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Trim</source>
        <translation>カット(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>クロップ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation>エフェクト(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Merge</source>
        <translation>結合(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Preference</source>
        <translation>環境設定(&amp;P)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <translation>プロファイル(&amp;P):</translation>
    </message>
    <message>
        <source>Setting...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>名前を付けて保存...</translation>
    </message>
    <message>
        <source>&amp;Destination:</source>
        <translation>出力先(&amp;D):</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>再生位置</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>出力先</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>全体の進行状況</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Open Files...</source>
        <translation>ファイルを開く...</translation>
    </message>
    <message>
        <source>Open Folder...</source>
        <translation>フォルダーを開く...</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上げる</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下げる</translation>
    </message>
    <message>
        <source>Convert Selected Item(s)</source>
        <translation>選択した項目を変換</translation>
    </message>
    <message>
        <source>Pause Selected Item(s)</source>
        <translation>選択した項目を一時停止</translation>
    </message>
    <message>
        <source>Stop Selected Item(s)</source>
        <translation>選択した項目を停止</translation>
    </message>
    <message>
        <source>Convert All Item(s)</source>
        <translation>すべての項目を変換</translation>
    </message>
    <message>
        <source>Pause All Item(s)</source>
        <translation>すべての項目を一時停止</translation>
    </message>
    <message>
        <source>Stop All Item(s)</source>
        <translation>すべての項目を停止</translation>
    </message>
</context>
<context>
    <name>saveAsDlg</name>
    <message>
        <source>Save As</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Save As:</source>
        <translation>保存名:</translation>
    </message>
</context>
<context>
    <name>splash</name>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. All rights reserved.</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>バージョン: %1</translation>
    </message>
</context>
</TS>
