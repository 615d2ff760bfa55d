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
        <source>Version: %1</source>
        <translation>الإصدار: %1</translation>
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
