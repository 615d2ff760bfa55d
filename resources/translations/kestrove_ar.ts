<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>CMainWnd</name>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>LTR</source>
        <translation>RTL</translation>
    </message>
    <message>
        <source>Display Original Frame</source>
        <translation>عرض الإطار الأصلي</translation>
    </message>
    <message>
        <source>Display Output Frame</source>
        <translation>عرض إطار الإخراج</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;حفظ باسم...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>إعادة ت&amp;سمية...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>ح&amp;ذف</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>البدء</translation>
    </message>
    <message>
        <source>1. Click &quot;%1 Open DVD %2&quot; to Open DVD.</source>
        <translation>1. انقر على &quot;%1 فتح DVD %2&quot; لفتح قرص DVD.</translation>
    </message>
    <message>
        <source>2. Click &quot;%1 Trim&quot; or &quot;%2 Crop&quot; to edit video file.</source>
        <translation>2. انقر على &quot;%1 قص&quot; أو &quot;%2 اقتصاص&quot; لتحرير ملف الفيديو.</translation>
    </message>
    <message>
        <source>3. Select output format from the &quot;Profile&quot; list.</source>
        <translation>3. اختر تنسيق الإخراج من قائمة &quot;ملف التعريف&quot;.</translation>
    </message>
    <message>
        <source>4. Click &quot;%1&quot; to convert.</source>
        <translation>4. انقر على &quot;%1&quot; لبدء التحويل.</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?</source>
        <translation>هل أنت متأكد من أنك تريد إيقاف التحويل؟</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>استعادة للأسفل</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Please Select Output Folder</source>
        <translation>الرجاء تحديد مجلد الإخراج</translation>
    </message>
    <message>
        <source>Please select a DVD drive or a DVD folder.</source>
        <translation>يرجى اختيار محرك DVD أو مجلد DVD.</translation>
    </message>
    <message>
        <source>Open IFO Files</source>
        <translation>فتح ملفات IFO</translation>
    </message>
    <message>
        <source>IFO Files (*.ifo *.IFO)</source>
        <translation>ملفات IFO (*.ifo *.IFO)</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>جارٍ التحميل...</translation>
    </message>
    <message>
        <source>The IFO File is invalid.
%1</source>
        <translation>ملف IFO غير صالح.
%1</translation>
    </message>
    <message>
        <source>Following files can not be loaded(They are not valid media files or their formats are not supported):</source>
        <translation>تعذّر تحميل الملفات التالية (ليست ملفات وسائط صالحة أو أن صيغها غير مدعومة):</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>كل الملفات</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>كل الصيغ المدعومة</translation>
    </message>
    <message>
        <source>Supported Video</source>
        <translation>الفيديو المدعوم</translation>
    </message>
    <message>
        <source>Supported Audio</source>
        <translation>الصوت المدعوم</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>تحميل</translation>
    </message>
    <message>
        <source>Select a Folder</source>
        <translation>اختر مجلدًا</translation>
    </message>
    <message>
        <source>Audio Tracks</source>
        <translation>المسارات الصوتية</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>الترجمة</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Source file %1 not found!</source>
        <translation>لم يُعثر على الملف المصدر %1!</translation>
    </message>
    <message>
        <source>Can not save the image.</source>
        <translation>تعذّر حفظ الصورة.</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>تحويل العناصر المعلّمة</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>إيقاف العناصر المعلّمة</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
    <message>
        <source>Elapsed Time: %1 Remaining Time: %2 Progress: </source>
        <translation>الوقت المنقضي: %1 الوقت المتبقي: %2 التقدم: </translation>
    </message>
    <message>
        <source>Conversion finished</source>
        <translation>انتهى التحويل</translation>
    </message>
    <message>
        <source>Succeeded: %1, failed: %2</source>
        <translation>نجح: %1، فشل: %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>Your profiles could not be saved.
%1</source>
        <translation>تعذّر حفظ ملفات التعريف الخاصة بك.
%1</translation>
    </message>
    <message>
        <source>Are you sure to apply current profile settings to all items?</source>
        <translation>هل أنت متأكد من تطبيق إعدادات ملف التعريف الحالي على جميع العناصر؟</translation>
    </message>
</context>
<context>
    <name>CPlayPauseButton</name>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
</context>
<context>
    <name>CProfileCombo</name>
    <message>
        <source>Profile</source>
        <translation>ملف التعريف</translation>
    </message>
</context>
<context>
    <name>CProfileMenu</name>
    <message>
        <source>Recommended</source>
        <translation>موصى به</translation>
    </message>
</context>
<context>
    <name>CSearchLineEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>مسح البحث</translation>
    </message>
</context>
<context>
    <name>CustomItemWidget</name>
    <message>
        <source>Convert This Item</source>
        <translation>تحويل هذا العنصر</translation>
    </message>
    <message>
        <source>Audio Track</source>
        <translation>مسار الصوت</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>الترجمة</translation>
    </message>
    <message>
        <source>Output Name</source>
        <translation>اسم الملف الناتج</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>ملف التعريف</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>تحريك لأعلى</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>تحريك لأسفل</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Stop Converting</source>
        <translation>إيقاف التحويل</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>توسيع</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>المتبقي</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>معدل البت</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 كيلوبت/ث</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Edit Audio</source>
        <translation>تحرير الصوت</translation>
    </message>
    <message>
        <source>Edit Subtitle</source>
        <translation>تحرير الترجمة</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>في الانتظار...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Pending...</source>
        <translation>معلّق...</translation>
    </message>
    <message>
        <source>Succeed</source>
        <translation>نجح</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>طي</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Are you sure you want to stop converting?
Some of the unfinished files cannot be played properly.</source>
        <translation>هل أنت متأكد من أنك تريد إيقاف التحويل؟
لن يمكن تشغيل بعض الملفات غير المكتملة بشكل صحيح.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
</context>
<context>
    <name>PlayerScreen</name>
    <message>
        <source>Video</source>
        <translation>الفيديو</translation>
    </message>
</context>
<context>
    <name>Profile</name>
    <message>
        <source>User Defined</source>
        <translation>مخصص</translation>
    </message>
    <message>
        <source>General Video</source>
        <translation>فيديو عام</translation>
    </message>
    <message>
        <source>General Audio</source>
        <translation>صوت عام</translation>
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
        <translation>فيديو عالي الدقة</translation>
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
        <translation>الهاتف المحمول</translation>
    </message>
    <message>
        <source>Picture and Animation</source>
        <translation>الصور والرسوم المتحركة</translation>
    </message>
    <message>
        <source>Portable Multimedia Device</source>
        <translation>جهاز وسائط متعددة محمول</translation>
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
        <translation>فيديو Xbox عالي الدقة</translation>
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
        <translation>Advanced Streaming Format، حاوية من Windows Media.</translation>
    </message>
    <message>
        <source>AVI - Audio-Video Interleaved</source>
        <translation>AVI - Audio-Video Interleaved</translation>
    </message>
    <message>
        <source>Audio-Video Interleaved, the classic Windows video format.</source>
        <translation>Audio-Video Interleaved، تنسيق الفيديو التقليدي في Windows.</translation>
    </message>
    <message>
        <source>DivX Video</source>
        <translation>فيديو DivX</translation>
    </message>
    <message>
        <source>DivX video in an AVI container.</source>
        <translation>فيديو DivX داخل حاوية AVI.</translation>
    </message>
    <message>
        <source>DV - Digital Video format</source>
        <translation>DV - تنسيق الفيديو الرقمي</translation>
    </message>
    <message>
        <source>Digital Video format of camcorders.</source>
        <translation>تنسيق الفيديو الرقمي الخاص بكاميرات الفيديو.</translation>
    </message>
    <message>
        <source>DVD Video</source>
        <translation>فيديو DVD</translation>
    </message>
    <message>
        <source>MPEG-2 video for DVD players.</source>
        <translation>فيديو MPEG-2 لمشغلات DVD.</translation>
    </message>
    <message>
        <source>MOV - QuickTime</source>
        <translation>MOV - QuickTime</translation>
    </message>
    <message>
        <source>QuickTime movie format.</source>
        <translation>تنسيق أفلام QuickTime.</translation>
    </message>
    <message>
        <source>MPEG4 Video</source>
        <translation>فيديو MPEG4</translation>
    </message>
    <message>
        <source>MPEG-4 video format.</source>
        <translation>تنسيق فيديو MPEG-4.</translation>
    </message>
    <message>
        <source>MPEG1 Video</source>
        <translation>فيديو MPEG1</translation>
    </message>
    <message>
        <source>MPEG-1 video format.</source>
        <translation>تنسيق فيديو MPEG-1.</translation>
    </message>
    <message>
        <source>MPEG2 Video</source>
        <translation>فيديو MPEG2</translation>
    </message>
    <message>
        <source>MPEG-2 video format.</source>
        <translation>تنسيق فيديو MPEG-2.</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC Video</source>
        <translation>فيديو H.264/MPEG-4 AVC</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC video format.</source>
        <translation>تنسيق فيديو H.264/MPEG-4 AVC.</translation>
    </message>
    <message>
        <source>RM - Real Video</source>
        <translation>RM - Real Video</translation>
    </message>
    <message>
        <source>RealVideo streaming format.</source>
        <translation>تنسيق RealVideo للبث المتدفق.</translation>
    </message>
    <message>
        <source>VCD Video</source>
        <translation>فيديو VCD</translation>
    </message>
    <message>
        <source>MPEG-1 video for Video CD players.</source>
        <translation>فيديو MPEG-1 لمشغلات Video CD.</translation>
    </message>
    <message>
        <source>WMV - Windows Media Video</source>
        <translation>WMV - Windows Media Video</translation>
    </message>
    <message>
        <source>Windows Media Video format.</source>
        <translation>تنسيق Windows Media Video.</translation>
    </message>
    <message>
        <source>Xvid Video</source>
        <translation>فيديو Xvid</translation>
    </message>
    <message>
        <source>Xvid video in an AVI container.</source>
        <translation>فيديو Xvid داخل حاوية AVI.</translation>
    </message>
    <message>
        <source>Matroska Video</source>
        <translation>فيديو Matroska</translation>
    </message>
    <message>
        <source>Matroska video format.</source>
        <translation>تنسيق فيديو Matroska.</translation>
    </message>
    <message>
        <source>WebM Video</source>
        <translation>فيديو WebM</translation>
    </message>
    <message>
        <source>WebM video format for the web.</source>
        <translation>تنسيق فيديو WebM للويب.</translation>
    </message>
    <message>
        <source>AC3 - Dolby Digital AC-3</source>
        <translation>AC3 - Dolby Digital AC-3</translation>
    </message>
    <message>
        <source>Dolby Digital AC-3 audio format.</source>
        <translation>تنسيق صوت Dolby Digital AC-3.</translation>
    </message>
    <message>
        <source>AIFF - Audio Interchange File Format</source>
        <translation>AIFF - Audio Interchange File Format</translation>
    </message>
    <message>
        <source>Audio Interchange File Format, uncompressed audio.</source>
        <translation>Audio Interchange File Format، صوت غير مضغوط.</translation>
    </message>
    <message>
        <source>ALAC - Apple Lossless Audio Codec</source>
        <translation>ALAC - Apple Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Apple Lossless audio format.</source>
        <translation>تنسيق صوت Apple Lossless.</translation>
    </message>
    <message>
        <source>FLAC - Free Lossless Audio Codec</source>
        <translation>FLAC - Free Lossless Audio Codec</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec format.</source>
        <translation>تنسيق الصوت عديم الفقد Free Lossless Audio Codec.</translation>
    </message>
    <message>
        <source>SUN AU Format</source>
        <translation>تنسيق SUN AU</translation>
    </message>
    <message>
        <source>Sun AU audio format.</source>
        <translation>تنسيق صوت Sun AU.</translation>
    </message>
    <message>
        <source>M4A - MPEG-4 Audio</source>
        <translation>M4A - صوت MPEG-4</translation>
    </message>
    <message>
        <source>MPEG-4 Audio format.</source>
        <translation>تنسيق صوت MPEG-4.</translation>
    </message>
    <message>
        <source>MP2 - MPEG Layer-2 Audio</source>
        <translation>MP2 - صوت MPEG Layer-2</translation>
    </message>
    <message>
        <source>MPEG Layer-2 audio format.</source>
        <translation>تنسيق صوت MPEG Layer-2.</translation>
    </message>
    <message>
        <source>MP3 - MPEG Layer-3 Audio</source>
        <translation>MP3 - صوت MPEG Layer-3</translation>
    </message>
    <message>
        <source>MPEG Layer-3 audio format.</source>
        <translation>تنسيق صوت MPEG Layer-3.</translation>
    </message>
    <message>
        <source>OGG - Ogg Vorbis Audio</source>
        <translation>OGG - صوت Ogg Vorbis</translation>
    </message>
    <message>
        <source>Ogg Vorbis audio format.</source>
        <translation>تنسيق صوت Ogg Vorbis.</translation>
    </message>
    <message>
        <source>RA - RealAudio</source>
        <translation>RA - RealAudio</translation>
    </message>
    <message>
        <source>RealAudio streaming format.</source>
        <translation>تنسيق RealAudio للبث المتدفق.</translation>
    </message>
    <message>
        <source>WAV - Waveform Audio</source>
        <translation>WAV - صوت Waveform</translation>
    </message>
    <message>
        <source>Waveform audio format, uncompressed.</source>
        <translation>تنسيق صوت Waveform، غير مضغوط.</translation>
    </message>
    <message>
        <source>WMA - Windows Media Audio</source>
        <translation>WMA - Windows Media Audio</translation>
    </message>
    <message>
        <source>Windows Media Audio format.</source>
        <translation>تنسيق Windows Media Audio.</translation>
    </message>
    <message>
        <source>Android MPEG4 Video</source>
        <translation>فيديو MPEG4 لأجهزة Android</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Android</source>
        <translation>ملف تعريف MPEG4 مُحسَّن لأجهزة Android</translation>
    </message>
    <message>
        <source>Samsung Galaxy S3 H.264 Video</source>
        <translation>فيديو H.264 لجهاز Samsung Galaxy S3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Galaxy S3</source>
        <translation>ملف تعريف H.264/MPEG-4 AVC مُحسَّن لجهاز Galaxy S3</translation>
    </message>
    <message>
        <source>Samsung Galaxy Tab MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز Samsung Galaxy Tab</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Galaxy Tab</source>
        <translation>ملف تعريف MPEG4 مُحسَّن لجهاز Galaxy Tab</translation>
    </message>
    <message>
        <source>Apple TV H.264 Video</source>
        <translation>فيديو H.264 لجهاز Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV</source>
        <translation>ملف تعريف H.264/MPEG-4 AVC مُحسَّن لجهاز Apple TV</translation>
    </message>
    <message>
        <source>Apple TV H.264 HD Video</source>
        <translation>فيديو H.264 عالي الدقة لجهاز Apple TV</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Apple TV HD</source>
        <translation>ملف تعريف H.264/MPEG-4 AVC مُحسَّن لجهاز Apple TV HD</translation>
    </message>
    <message>
        <source>Apple TV 3 H.264 1080P Video</source>
        <translation>فيديو H.264 1080P لجهاز Apple TV 3</translation>
    </message>
    <message>
        <source>Apple TV MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز Apple TV</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Apple TV</source>
        <translation>ملف تعريف MPEG4 مُحسَّن لجهاز Apple TV</translation>
    </message>
    <message>
        <source>HD ASF Video</source>
        <translation>فيديو ASF عالي الدقة</translation>
    </message>
    <message>
        <source>ASF profile optimized for HD players</source>
        <translation>ملف تعريف ASF مُحسَّن لمشغلات الفيديو عالية الدقة</translation>
    </message>
    <message>
        <source>HD AVI Video</source>
        <translation>فيديو AVI عالي الدقة</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for HD players</source>
        <translation>ملف تعريف MPEG4 AVI مُحسَّن لمشغلات الفيديو عالية الدقة</translation>
    </message>
    <message>
        <source>HD H.264/MPEG-4 AVC Video</source>
        <translation>فيديو H.264/MPEG-4 AVC عالي الدقة</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for HD players</source>
        <translation>ملف تعريف H.264/MPEG-4 AVC مُحسَّن لمشغلات الفيديو عالية الدقة</translation>
    </message>
    <message>
        <source>HD Quick Time Video</source>
        <translation>فيديو QuickTime عالي الدقة</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for HD players</source>
        <translation>ملف تعريف MPEG4 مُحسَّن لمشغلات الفيديو عالية الدقة</translation>
    </message>
    <message>
        <source>MPEG2-PS HD Video</source>
        <translation>فيديو MPEG2-PS عالي الدقة</translation>
    </message>
    <message>
        <source>MPEG2 profile optimized for HD players</source>
        <translation>ملف تعريف MPEG2 مُحسَّن لمشغلات الفيديو عالية الدقة</translation>
    </message>
    <message>
        <source>MPEG2-TS HD Video</source>
        <translation>فيديو MPEG2-TS عالي الدقة</translation>
    </message>
    <message>
        <source>MPEG4 HD Video</source>
        <translation>فيديو MPEG4 عالي الدقة</translation>
    </message>
    <message>
        <source>RM HD Video</source>
        <translation>فيديو RM عالي الدقة</translation>
    </message>
    <message>
        <source>RealVideo profile optimized for HD players</source>
        <translation>ملف تعريف RealVideo مُحسَّن لمشغلات الفيديو عالية الدقة</translation>
    </message>
    <message>
        <source>HD WMV Video</source>
        <translation>فيديو WMV عالي الدقة</translation>
    </message>
    <message>
        <source>WMV profile optimized for HD players</source>
        <translation>ملف تعريف WMV مُحسَّن لمشغلات الفيديو عالية الدقة</translation>
    </message>
    <message>
        <source>XVID HD Video</source>
        <translation>فيديو XVID عالي الدقة</translation>
    </message>
    <message>
        <source>Xvid profile optimized for HD players</source>
        <translation>ملف تعريف Xvid مُحسَّن لمشغلات الفيديو عالية الدقة</translation>
    </message>
    <message>
        <source>iPad H.264 Video</source>
        <translation>فيديو H.264 لجهاز iPad</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPad</source>
        <translation>ملف تعريف H.264/MPEG-4 AVC مُحسَّن لجهاز iPad</translation>
    </message>
    <message>
        <source>iPad H.264 HD Video</source>
        <translation>فيديو H.264 عالي الدقة لجهاز iPad</translation>
    </message>
    <message>
        <source>iPad MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز iPad</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPad</source>
        <translation>ملف تعريف MPEG4 مُحسَّن لجهاز iPad</translation>
    </message>
    <message>
        <source>iPad 2 H.264 Video</source>
        <translation>فيديو H.264 لجهاز iPad 2</translation>
    </message>
    <message>
        <source>iPad 2 H.264 HD Video</source>
        <translation>فيديو H.264 عالي الدقة لجهاز iPad 2</translation>
    </message>
    <message>
        <source>iPad 2 MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز iPad 2</translation>
    </message>
    <message>
        <source>iPad 3 1080P Video</source>
        <translation>فيديو 1080P لجهاز iPad 3</translation>
    </message>
    <message>
        <source>iPad mini H.264 Video</source>
        <translation>فيديو H.264 لجهاز iPad mini</translation>
    </message>
    <message>
        <source>iPhone H.264 Video</source>
        <translation>فيديو H.264 لجهاز iPhone</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPhone</source>
        <translation>ملف تعريف H.264/MPEG-4 AVC مُحسَّن لجهاز iPhone</translation>
    </message>
    <message>
        <source>iPhone MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز iPhone</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPhone</source>
        <translation>ملف تعريف MPEG4 مُحسَّن لجهاز iPhone</translation>
    </message>
    <message>
        <source>iPhone 4 H.264 Video</source>
        <translation>فيديو H.264 لجهاز iPhone 4</translation>
    </message>
    <message>
        <source>iPhone 4 MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز iPhone 4</translation>
    </message>
    <message>
        <source>iPhone 5 H.264 Video</source>
        <translation>فيديو H.264 لجهاز iPhone 5</translation>
    </message>
    <message>
        <source>iPod H.264 Video</source>
        <translation>فيديو H.264 لجهاز iPod</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod</source>
        <translation>ملف تعريف H.264/MPEG-4 AVC مُحسَّن لجهاز iPod</translation>
    </message>
    <message>
        <source>iPod MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز iPod</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod</source>
        <translation>ملف تعريف MPEG4 مُحسَّن لجهاز iPod</translation>
    </message>
    <message>
        <source>iPod touch H.264 Video</source>
        <translation>فيديو H.264 لجهاز iPod touch</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for iPod touch</source>
        <translation>ملف تعريف H.264/MPEG-4 AVC مُحسَّن لجهاز iPod touch</translation>
    </message>
    <message>
        <source>iPod touch MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز iPod touch</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for iPod touch</source>
        <translation>ملف تعريف MPEG4 مُحسَّن لجهاز iPod touch</translation>
    </message>
    <message>
        <source>iPod touch 4 H.264 Video</source>
        <translation>فيديو H.264 لجهاز iPod touch 4</translation>
    </message>
    <message>
        <source>iPod touch 4 MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز iPod touch 4</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Stereo</source>
        <translation>فيديو 3GP للهاتف المحمول - ستيريو</translation>
    </message>
    <message>
        <source>3GP profile optimized for mobile phones</source>
        <translation>ملف تعريف 3GP مُحسَّن للهواتف المحمولة</translation>
    </message>
    <message>
        <source>Mobile Phone 3GP Video - Mono</source>
        <translation>فيديو 3GP للهاتف المحمول - أحادي</translation>
    </message>
    <message>
        <source>BlackBerry 3GP Video</source>
        <translation>فيديو 3GP لجهاز BlackBerry</translation>
    </message>
    <message>
        <source>BlackBerry AVI Video</source>
        <translation>فيديو AVI لجهاز BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 AVI profile optimized for mobile phones</source>
        <translation>ملف تعريف MPEG4 AVI مُحسَّن للهواتف المحمولة</translation>
    </message>
    <message>
        <source>BlackBerry MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز BlackBerry</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for mobile phones</source>
        <translation>ملف تعريف MPEG4 مُحسَّن للهواتف المحمولة</translation>
    </message>
    <message>
        <source>WMV Video for Mobile Phone</source>
        <translation>فيديو WMV للهاتف المحمول</translation>
    </message>
    <message>
        <source>WMV profile optimized for mobile phones</source>
        <translation>ملف تعريف WMV مُحسَّن للهواتف المحمولة</translation>
    </message>
    <message>
        <source>FLV - Flash Video Format</source>
        <translation>FLV - تنسيق فيديو Flash</translation>
    </message>
    <message>
        <source>Flash video format for web pages.</source>
        <translation>تنسيق فيديو Flash لصفحات الويب.</translation>
    </message>
    <message>
        <source>Picture - BMP format</source>
        <translation>صورة - تنسيق BMP</translation>
    </message>
    <message>
        <source>Pictures captured from the video as BMP files.</source>
        <translation>صور ملتقطة من الفيديو تُحفظ كملفات BMP.</translation>
    </message>
    <message>
        <source>Picture - GIF Animation format</source>
        <translation>صورة - تنسيق GIF المتحرك</translation>
    </message>
    <message>
        <source>An animated GIF picture made from the video.</source>
        <translation>صورة GIF متحركة تُنشأ من الفيديو.</translation>
    </message>
    <message>
        <source>Picture - JPEG format</source>
        <translation>صورة - تنسيق JPEG</translation>
    </message>
    <message>
        <source>Pictures captured from the video as JPEG files.</source>
        <translation>صور ملتقطة من الفيديو تُحفظ كملفات JPEG.</translation>
    </message>
    <message>
        <source>Picture - PNG format</source>
        <translation>صورة - تنسيق PNG</translation>
    </message>
    <message>
        <source>Pictures captured from the video as PNG files.</source>
        <translation>صور ملتقطة من الفيديو تُحفظ كملفات PNG.</translation>
    </message>
    <message>
        <source>SWF - SWF Format</source>
        <translation>SWF - تنسيق SWF</translation>
    </message>
    <message>
        <source>Shockwave Flash animation format.</source>
        <translation>تنسيق رسوم Shockwave Flash المتحركة.</translation>
    </message>
    <message>
        <source>Archos MPEG4</source>
        <translation>Archos MPEG4</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for portable players</source>
        <translation>ملف تعريف MPEG4 مُحسَّن للمشغلات المحمولة</translation>
    </message>
    <message>
        <source>Creative ZEN MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز Creative ZEN</translation>
    </message>
    <message>
        <source>iRiver MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز iRiver</translation>
    </message>
    <message>
        <source>PS3 H.264 Video</source>
        <translation>فيديو H.264 لجهاز PS3</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for PS3</source>
        <translation>ملف تعريف H.264/MPEG-4 AVC مُحسَّن لجهاز PS3</translation>
    </message>
    <message>
        <source>PSP MPEG-4 Video</source>
        <translation>فيديو MPEG-4 لجهاز PSP</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for PSP</source>
        <translation>ملف تعريف MPEG4 مُحسَّن لجهاز PSP</translation>
    </message>
    <message>
        <source>Xbox360 H.264 Video</source>
        <translation>فيديو H.264 لجهاز Xbox360</translation>
    </message>
    <message>
        <source>H.264/MPEG-4 AVC profile optimized for Xbox360</source>
        <translation>ملف تعريف H.264/MPEG-4 AVC مُحسَّن لجهاز Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز Xbox360</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Xbox360</source>
        <translation>ملف تعريف MPEG4 مُحسَّن لجهاز Xbox360</translation>
    </message>
    <message>
        <source>Xbox360 WMV Video</source>
        <translation>فيديو WMV لجهاز Xbox360</translation>
    </message>
    <message>
        <source>WMV profile optimized for Xbox360</source>
        <translation>ملف تعريف WMV مُحسَّن لجهاز Xbox360</translation>
    </message>
    <message>
        <source>Zune MPEG4 Video</source>
        <translation>فيديو MPEG4 لجهاز Zune</translation>
    </message>
    <message>
        <source>MPEG4 profile optimized for Zune</source>
        <translation>ملف تعريف MPEG4 مُحسَّن لجهاز Zune</translation>
    </message>
</context>
<context>
    <name>ProfileGroupLoader</name>
    <message>
        <source>Untitled</source>
        <translation>بلا عنوان</translation>
    </message>
</context>
<context>
    <name>ProfileMenu</name>
    <message>
        <source>Previous group</source>
        <translation>المجموعة السابقة</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>المجموعات</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>المجموعة التالية</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>البحث في ملفات التعريف</translation>
    </message>
    <message>
        <source>Previous profile</source>
        <translation>ملف التعريف السابق</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>ملفات التعريف</translation>
    </message>
    <message>
        <source>Next profile</source>
        <translation>ملف التعريف التالي</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>البحث عن ملف تعريف...</translation>
    </message>
</context>
<context>
    <name>QtColorComboBox</name>
    <message>
        <source>More...</source>
        <translation>المزيد...</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>أسود</translation>
    </message>
    <message>
        <source>White</source>
        <translation>أبيض</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>أحمر داكن</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>أخضر داكن</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>أزرق داكن</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>سماوي</translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation>سماوي داكن</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>أرجواني</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>أرجواني داكن</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>أصفر</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>أصفر داكن</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>رمادي</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>رمادي داكن</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>رمادي فاتح</translation>
    </message>
    <message>
        <source>User color %1</source>
        <translation>لون المستخدم %1</translation>
    </message>
    <message>
        <source>User Color 99</source>
        <translation>لون المستخدم 99</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>الخاصية</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
</context>
<context>
    <name>QxLanguage</name>
    <message>
        <source>&amp;Language</source>
        <translation>ال&amp;لغة</translation>
    </message>
</context>
<context>
    <name>QxSkin</name>
    <message>
        <source>&amp;Skin</source>
        <translation>ال&amp;مظهر</translation>
    </message>
</context>
<context>
    <name>SettingDialog</name>
    <message>
        <source>Advanced Settings</source>
        <translation>إعدادات متقدمة</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>بسيط</translation>
    </message>
    <message>
        <source>Video Size:</source>
        <translation>حجم الفيديو:</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>حجم الفيديو</translation>
    </message>
    <message>
        <source>Video Quality:</source>
        <translation>جودة الفيديو:</translation>
    </message>
    <message>
        <source>Video Quality</source>
        <translation>جودة الفيديو</translation>
    </message>
    <message>
        <source>Audio Quality:</source>
        <translation>جودة الصوت:</translation>
    </message>
    <message>
        <source>Audio Quality</source>
        <translation>جودة الصوت</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>متقدم</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Apply To All</source>
        <translation>تطبيق على الكل</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Picture Format</source>
        <translation>تنسيق الصور</translation>
    </message>
    <message>
        <source>Picture format.</source>
        <translation>تنسيق ملفات الصور الملتقطة.</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>الفاصل الزمني</translation>
    </message>
    <message>
        <source>Select how many seconds to capture one picture.</source>
        <translation>يحدد عدد الثواني بين كل صورة ملتقطة والتي تليها.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>الفيديو</translation>
    </message>
    <message>
        <source>Video options</source>
        <translation>خيارات الفيديو</translation>
    </message>
    <message>
        <source>Video Codec</source>
        <translation>ترميز الفيديو</translation>
    </message>
    <message>
        <source>Set the video codec (methods of compression for digital videos, e.g., MPEG-4, H.264 or WMV) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>يحدد برنامج ترميز الفيديو (طريقة ضغط الفيديو الرقمي، مثل MPEG-4 أو H.264 أو WMV) الذي يستخدمه محرك الترميز. ويرتبط عادةً بتنسيق الإخراج الذي تختاره.</translation>
    </message>
    <message>
        <source>Video Size</source>
        <translation>أبعاد الفيديو</translation>
    </message>
    <message>
        <source>Set frame size. The format is &apos;width x height&apos; like 320x240, 640x480 or 1920x1080 pixels. You can choose an similar size for your playback device screen resolution.</source>
        <translation>يحدد أبعاد الإطار بالصيغة &quot;العرض x الارتفاع&quot;، مثل 320x240 أو 640x480 أو 1920x1080 بكسل. يمكنك اختيار أبعاد قريبة من دقة شاشة جهاز التشغيل لديك.</translation>
    </message>
    <message>
        <source>Video Bitrate</source>
        <translation>معدل بت الفيديو</translation>
    </message>
    <message>
        <source>Set the video bit rate in kilobit per second. This is the key factor that is related to the output file size and video quality -- the larger the bit rate, the better the video quality and the bigger the output file you will get, and vice versa.</source>
        <translation>يحدد معدل بت الفيديو بالكيلوبت في الثانية. وهو العامل الأساسي الذي يحدد حجم ملف الإخراج وجودة الفيديو؛ فكلما زاد معدل البت تحسنت جودة الفيديو وكبر حجم ملف الإخراج، والعكس صحيح.</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>معدل الإطارات</translation>
    </message>
    <message>
        <source>Set how many frames should be displayed per second (FPS). Higher frame rate increases the smoothness when played back, and usually 25--30 frame per second can provide you with a very good viewing experience.</source>
        <translation>يحدد عدد الإطارات المعروضة في الثانية (FPS). كلما ارتفع معدل الإطارات زادت سلاسة التشغيل، وعادةً ما يوفر معدل 25 إلى 30 إطارًا في الثانية تجربة مشاهدة جيدة جدًا.</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>نسبة الأبعاد</translation>
    </message>
    <message>
        <source>Set width to height ratio according to the screen aspect of your playback device . (4:3, 16:9 or 1.3333, 1.7777).</source>
        <translation>يحدد نسبة العرض إلى الارتفاع وفقًا لأبعاد شاشة جهاز التشغيل لديك (4:3 أو 16:9 أو 1.3333 أو 1.7777).</translation>
    </message>
    <message>
        <source>Same Quality</source>
        <translation>جودة المصدر</translation>
    </message>
    <message>
        <source>This function enables you to get good output video quality as the source. (Sometimes this function may bring you a large output file, or make the converting time pretty long.)</source>
        <translation>تتيح لك هذه الميزة الحصول على فيديو إخراج بجودة مماثلة لجودة المصدر. (قد ينتج عنها أحيانًا ملف إخراج كبير الحجم، أو تطول مدة التحويل كثيرًا.)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>التكبير</translation>
    </message>
    <message>
        <source>Select zoom mode, that is how to deal with the blank edge when the aspect of the source and the destination is different.</source>
        <translation>يحدد وضع التكبير، أي كيفية التعامل مع الحواف الفارغة عندما تختلف نسبة أبعاد المصدر عن نسبة أبعاد الوجهة.</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>Audio options</source>
        <translation>خيارات الصوت</translation>
    </message>
    <message>
        <source>Audio Codec</source>
        <translation>ترميز الصوت</translation>
    </message>
    <message>
        <source>Set the audio codec (methods of compression for digital audio, e.g., MP3, PCM or AC3) which the encoding engine uses. Usually it is related to the output format you choose.</source>
        <translation>يحدد برنامج ترميز الصوت (طريقة ضغط الصوت الرقمي، مثل MP3 أو PCM أو AC3) الذي يستخدمه محرك الترميز. ويرتبط عادةً بتنسيق الإخراج الذي تختاره.</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>معدل بت الصوت</translation>
    </message>
    <message>
        <source>Set audio bitrate (in kbit/s)</source>
        <translation>يحدد معدل بت الصوت (بوحدة kbit/s)</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>معدل العينات</translation>
    </message>
    <message>
        <source>Set the audio sampling frequency (the number of samples per second) (default = 44100 Hz).</source>
        <translation>يحدد تردد أخذ العينات للصوت، أي عدد العينات في الثانية (الافتراضي = 44100 هرتز).</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>القنوات</translation>
    </message>
    <message>
        <source>Set number of audio channels, 1(Mono), 2(Stereo) and 5.1(Dolby Digital) are commonly used for general digital audio.</source>
        <translation>يحدد عدد قنوات الصوت؛ والقيم الشائعة في الصوت الرقمي هي 1 (أحادي) و2 (ستيريو) و5.1 (Dolby Digital).</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>مستوى الصوت</translation>
    </message>
    <message>
        <source>Set the output volume.</source>
        <translation>يحدد مستوى صوت الإخراج.</translation>
    </message>
    <message>
        <source>Disable Audio</source>
        <translation>تعطيل الصوت</translation>
    </message>
    <message>
        <source>Disable audio</source>
        <translation>ينشئ الإخراج دون مسار صوتي</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>الملخص</translation>
    </message>
    <message>
        <source>Summary of the file</source>
        <translation>معلومات ملخصة عن الملف</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Set the title</source>
        <translation>يحدد العنوان</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>المؤلف</translation>
    </message>
    <message>
        <source>Set the author</source>
        <translation>يحدد المؤلف</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>حقوق النشر</translation>
    </message>
    <message>
        <source>Set the copyright</source>
        <translation>يحدد بيان حقوق النشر</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>التعليقات</translation>
    </message>
    <message>
        <source>Set the comment</source>
        <translation>يحدد التعليق</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>الألبوم</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>الملحن</translation>
    </message>
    <message>
        <source>Orig. Artist</source>
        <translation>الفنان الأصلي</translation>
    </message>
    <message>
        <source>Encoded by</source>
        <translation>رُمِّز بواسطة</translation>
    </message>
    <message>
        <source>Url</source>
        <translation>عنوان URL</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>السنة</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>متقدم</translation>
    </message>
    <message>
        <source>Expert options</source>
        <translation>خيارات متقدمة</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>المعلمات</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Title_%1</source>
        <translation>عنوان_%1</translation>
    </message>
    <message>
        <source>Merge %1</source>
        <translation>دمج %1</translation>
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
        <translation>بايت</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>ك.بايت</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>م.بايت</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>ج.بايت</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>ت.بايت</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>ب.بايت</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>إ.بايت</translation>
    </message>
    <message>
        <source>ZB</source>
        <translation>ز.بايت</translation>
    </message>
    <message>
        <source>YB</source>
        <translation>ي.بايت</translation>
    </message>
</context>
<context>
    <name>mainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>Open DVD...</source>
        <translation>فتح DVD...</translation>
    </message>
    <message>
        <source>Open DVD Folder...</source>
        <translation>فتح مجلد DVD...</translation>
    </message>
    <message>
        <source>Open IFO Files...</source>
        <translation>فتح ملفات IFO...</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>تحميل مشروع...</translation>
    </message>
    <message>
        <source>Save Project...</source>
        <translation>حفظ المشروع...</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>حفظ المشروع باسم...</translation>
    </message>
    <message>
        <source>Search Profile...</source>
        <translation>البحث عن ملف تعريف...</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>الخصائص...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;تحرير</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>إعادة تسمية</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>نقل</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>نقل لأسفل</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>إلى الأعلى</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>إلى الأسفل</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>استنساخ</translation>
    </message>
    <message>
        <source>Remove Selected Item(s)</source>
        <translation>إزالة العناصر المحددة</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>مسح الكل</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>إلغاء تحديد الكل</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>عكس التحديد</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>وضع علامة على الكل</translation>
    </message>
    <message>
        <source>Uncheck All</source>
        <translation>إزالة العلامة عن الكل</translation>
    </message>
    <message>
        <source>Invert Check</source>
        <translation>عكس العلامات</translation>
    </message>
    <message>
        <source>Merge Selected into One</source>
        <translation>دمج العناصر المحددة في ملف واحد</translation>
    </message>
    <message>
        <source>Split by Chapter</source>
        <translation>تقسيم حسب الفصل</translation>
    </message>
    <message>
        <source>Add Output Profile...</source>
        <translation>إضافة ملف تعريف إخراج...</translation>
    </message>
    <message>
        <source>Apply Profile to All</source>
        <translation>تطبيق ملف التعريف على الكل</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>ت&amp;شغيل</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>تشغيل/إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>لقطة</translation>
    </message>
    <message>
        <source>Open Snapshot Folder</source>
        <translation>فتح مجلد اللقطات</translation>
    </message>
    <message>
        <source>Change Snapshot Folder</source>
        <translation>تغيير مجلد اللقطات</translation>
    </message>
    <message>
        <source>Snapshot Format</source>
        <translation>تنسيق اللقطة</translation>
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
        <translation>ملء الشاشة</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <translation>م&amp;قطع</translation>
    </message>
    <message>
        <source>Trim...</source>
        <translation>قص...</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>اقتصاص...</translation>
    </message>
    <message>
        <source>Smart Crop</source>
        <translation>اقتصاص ذكي</translation>
    </message>
    <message>
        <source>Watermark...</source>
        <translation>علامة مائية...</translation>
    </message>
    <message>
        <source>Effect...</source>
        <translation>تأثير...</translation>
    </message>
    <message>
        <source>Clear All Effects</source>
        <translation>مسح كل التأثيرات</translation>
    </message>
    <message>
        <source>Audio Track...</source>
        <translation>المسار الصوتي...</translation>
    </message>
    <message>
        <source>Subtitle...</source>
        <translation>الترجمة...</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>إ&amp;جراء</translation>
    </message>
    <message>
        <source>Convert Checked Item(s)</source>
        <translation>تحويل العناصر المعلّمة</translation>
    </message>
    <message>
        <source>Pause Checked Item(s)</source>
        <translation>إيقاف مؤقت للعناصر المعلّمة</translation>
    </message>
    <message>
        <source>Stop Checked Item(s)</source>
        <translation>إيقاف العناصر المعلّمة</translation>
    </message>
    <message>
        <source>Open Source File Location</source>
        <translation>فتح موقع الملف المصدر</translation>
    </message>
    <message>
        <source>Open Output File Location</source>
        <translation>فتح موقع ملف الإخراج</translation>
    </message>
    <message>
        <source>Post Task Actions</source>
        <translation>إجراءات ما بعد المهمة</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>عدم القيام بأي شيء</translation>
    </message>
    <message>
        <source>Exit Program</source>
        <translation>إنهاء البرنامج</translation>
    </message>
    <message>
        <source>Shut Down</source>
        <translation>إيقاف التشغيل</translation>
    </message>
    <message>
        <source>Log Off</source>
        <translation>تسجيل الخروج</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>إسبات</translation>
    </message>
    <message>
        <source>Stand By</source>
        <translation>وضع الاستعداد</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>إعادة التشغيل</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>&amp;خيارات</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>التفضيلات...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>Tessarine Kestrove</source>
        <translation>Tessarine Kestrove</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>&amp;Open DVD</source>
        <translation>&amp;فتح DVD</translation>
    </message>
    <message>
        <source>&amp;Trim</source>
        <translation>&amp;قص</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>ا&amp;قتصاص</translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation>&amp;تأثير</translation>
    </message>
    <message>
        <source>&amp;Merge</source>
        <translation>&amp;دمج</translation>
    </message>
    <message>
        <source>&amp;Preference</source>
        <translation>ال&amp;تفضيلات</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>كتم الصوت</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <translation>م&amp;لف التعريف:</translation>
    </message>
    <message>
        <source>Setting...</source>
        <translation>الإعدادات...</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>حفظ باسم...</translation>
    </message>
    <message>
        <source>&amp;Destination:</source>
        <translation>ال&amp;وجهة:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>استعراض...</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>فتح المجلد</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>مستوى الصوت</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>المهام</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>ملف التعريف</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>الوجهة</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>التقدم الإجمالي</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
    <message>
        <source>Open Files...</source>
        <translation>فتح ملفات...</translation>
    </message>
    <message>
        <source>Open Folder...</source>
        <translation>فتح مجلد...</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>رفع</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>خفض</translation>
    </message>
    <message>
        <source>Convert Selected Item(s)</source>
        <translation>تحويل العناصر المحددة</translation>
    </message>
    <message>
        <source>Pause Selected Item(s)</source>
        <translation>إيقاف العناصر المحددة مؤقتًا</translation>
    </message>
    <message>
        <source>Stop Selected Item(s)</source>
        <translation>إيقاف العناصر المحددة</translation>
    </message>
    <message>
        <source>Convert All Item(s)</source>
        <translation>تحويل كل العناصر</translation>
    </message>
    <message>
        <source>Pause All Item(s)</source>
        <translation>إيقاف كل العناصر مؤقتًا</translation>
    </message>
    <message>
        <source>Stop All Item(s)</source>
        <translation>إيقاف كل العناصر</translation>
    </message>
</context>
<context>
    <name>saveAsDlg</name>
    <message>
        <source>Save As</source>
        <translation>حفظ باسم</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Save As:</source>
        <translation>حفظ باسم:</translation>
    </message>
</context>
<context>
    <name>splash</name>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. جميع الحقوق محفوظة.</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>الإصدار: %1</translation>
    </message>
</context>
</TS>
