<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AccentPicker</name>
    <message>
        <source>Accent</source>
        <translation>لون التمييز</translation>
    </message>
</context>
<context>
    <name>AllToolsView</name>
    <message>
        <source>Favourites stay in the header. Choose them in the settings.</source>
        <translation>تبقى المفضّلة في الترويسة. اخترها من الإعدادات.</translation>
    </message>
    <message>
        <source>move</source>
        <translation>تنقّل</translation>
    </message>
    <message>
        <source>open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>All tools</source>
        <translation>كل الأدوات</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>ليست في هذا الإصدار بعد</translation>
    </message>
</context>
<context>
    <name>Amounts</name>
    <message>
        <source>Processor</source>
        <translation>المعالج</translation>
    </message>
    <message>
        <source>Processor, programs</source>
        <translation>المعالج، البرامج</translation>
    </message>
    <message>
        <source>Processor, system</source>
        <translation>المعالج، النظام</translation>
    </message>
    <message>
        <source>Processor, idle</source>
        <translation>المعالج، خامل</translation>
    </message>
    <message>
        <source>Memory in use</source>
        <translation>الذاكرة المستخدمة</translation>
    </message>
    <message>
        <source>Memory installed</source>
        <translation>الذاكرة المركّبة</translation>
    </message>
    <message>
        <source>Memory pressure</source>
        <translation>ضغط الذاكرة</translation>
    </message>
    <message>
        <source>Memory wired</source>
        <translation>ذاكرة مثبّتة</translation>
    </message>
    <message>
        <source>Memory compressed</source>
        <translation>ذاكرة مضغوطة</translation>
    </message>
    <message>
        <source>Disk free</source>
        <translation>المتاح في القرص</translation>
    </message>
    <message>
        <source>Disk size</source>
        <translation>حجم القرص</translation>
    </message>
    <message>
        <source>Disk read</source>
        <translation>القراءة من القرص</translation>
    </message>
    <message>
        <source>Disk write</source>
        <translation>الكتابة إلى القرص</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>التنزيل</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>الرفع</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>صحة البطارية</translation>
    </message>
    <message>
        <source>Battery left</source>
        <translation>ما بقي للبطارية</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>الرسوميات</translation>
    </message>
    <message>
        <source>Graphics memory</source>
        <translation>ذاكرة الرسوميات</translation>
    </message>
    <message>
        <source>Processor temperature</source>
        <translation>حرارة المعالج</translation>
    </message>
    <message>
        <source>Graphics temperature</source>
        <translation>حرارة الرسوميات</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>المروحة</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>الطاقة</translation>
    </message>
    <message>
        <source>Energy impact</source>
        <translation>أثر الطاقة</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 ب</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 ك.ب</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 م.ب</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 غ.ب</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 ت.ب</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 ب.ب</translation>
    </message>
    <message>
        <source>%1%</source>
        <comment>percent</comment>
        <translation>%1٪</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>12.1 MB a second</comment>
        <translation>%1/ث</translation>
    </message>
    <message>
        <source>%1 d %2 h</source>
        <comment>days and hours</comment>
        <translation>%1 ي %2 س</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 س %2 د</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °م</translation>
    </message>
    <message>
        <source>%1 rpm</source>
        <comment>turns a minute</comment>
        <translation>%1 د/د</translation>
    </message>
    <message>
        <source>%1 W</source>
        <comment>watts</comment>
        <translation>%1 واط</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>يتهيّأ</translation>
    </message>
    <message>
        <source>No reading since %1</source>
        <translation>لا قراءة منذ %1</translation>
    </message>
    <message>
        <source>Not on this computer</source>
        <translation>ليس في هذا الحاسوب</translation>
    </message>
    <message>
        <source>Not permitted</source>
        <translation>غير مسموح</translation>
    </message>
</context>
<context>
    <name>AskDialog</name>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>AssistantChangePage</name>
    <message>
        <source>Connect %1</source>
        <translation>ربط %1</translation>
    </message>
    <message>
        <source>Disconnect %1</source>
        <translation>فصل %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Write this</source>
        <translation>كتابة التغيير</translation>
    </message>
    <message>
        <source>Reading the file…</source>
        <translation>تجري قراءة الملف…</translation>
    </message>
</context>
<context>
    <name>AssistantConnection</name>
    <message>
        <source>Connected in %1</source>
        <translation>مربوط في %1</translation>
    </message>
    <message>
        <source>Connected in part in %1</source>
        <translation>مربوط جزئيًا في %1</translation>
    </message>
    <message>
        <source>Not on this computer</source>
        <translation>ليس على هذا الحاسوب</translation>
    </message>
    <message>
        <source>Not connected. You see the change of %1 first.</source>
        <translation>غير مربوط. ترى تغيير %1 أولًا.</translation>
    </message>
    <message>
        <source>Disconnect…</source>
        <translation>فصل…</translation>
    </message>
    <message>
        <source>Disconnect %1</source>
        <translation>فصل %1</translation>
    </message>
    <message>
        <source>Complete…</source>
        <translation>إكمال…</translation>
    </message>
    <message>
        <source>Connect…</source>
        <translation>ربط…</translation>
    </message>
    <message>
        <source>Connect %1</source>
        <translation>ربط %1</translation>
    </message>
</context>
<context>
    <name>AssistantConnectionsPage</name>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>الروابط</translation>
    </message>
    <message>
        <source>Say who waits for you</source>
        <translation>إظهار من ينتظرك</translation>
    </message>
    <message>
        <source>In the strip, for a quarter of an hour, until you look here.</source>
        <translation>في الشريط ربع ساعة، إلى أن تنظر هنا.</translation>
    </message>
</context>
<context>
    <name>AssistantDiff</name>
    <message>
        <source>The change</source>
        <translation>التغيير</translation>
    </message>
</context>
<context>
    <name>AssistantsView</name>
    <message>
        <source>What is written or said is never passed on.</source>
        <translation>لا يُنقل شيء مما يُكتب أو يُقال.</translation>
    </message>
    <message>
        <source>Connections…</source>
        <translation>الروابط…</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Assistants</source>
        <translation>المساعدون</translation>
    </message>
    <message>
        <source>Reading the logs…</source>
        <translation>تجري قراءة السجلات…</translation>
    </message>
    <message>
        <source>No logs of coding assistants this week</source>
        <translation>لا سجلات لمساعدي البرمجة هذا الأسبوع</translation>
    </message>
    <message>
        <source>Claude Code and Codex are read from their own logs. Claude Code and Cursor can be connected.</source>
        <translation>يُقرأ Claude Code وCodex من سجلاتهما. ويمكن ربط Claude Code وCursor.</translation>
    </message>
    <message>
        <source>Connect…</source>
        <translation>ربط…</translation>
    </message>
</context>
<context>
    <name>BackupFileDialog</name>
    <message>
        <source>Export a backup</source>
        <translation>تصدير نسخة احتياطية</translation>
    </message>
    <message>
        <source>Import a backup</source>
        <translation>استيراد نسخة احتياطية</translation>
    </message>
    <message>
        <source>Backups (*.json)</source>
        <translation>النسخ الاحتياطية (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
</context>
<context>
    <name>CalendarAgenda</name>
    <message>
        <source>Calendars</source>
        <translation>التقاويم</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>المواعيد</translation>
    </message>
    <message>
        <source>Add an iCalendar file, or the folder that your calendar program keeps.</source>
        <translation>أضف ملف iCalendar أو المجلد الذي يحفظ فيه برنامج التقويم ملفاته.</translation>
    </message>
    <message>
        <source>Add a calendar</source>
        <translation>إضافة تقويم</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
</context>
<context>
    <name>CalendarDayCell</name>
    <message>
        <source>%1, with events</source>
        <translation>%1، وفيه مواعيد</translation>
    </message>
</context>
<context>
    <name>CalendarEventDetail</name>
    <message>
        <source>Back to the day</source>
        <translation>العودة إلى اليوم</translation>
    </message>
</context>
<context>
    <name>CalendarMonth</name>
    <message>
        <source>Month before</source>
        <translation>الشهر السابق</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page up</translation>
    </message>
    <message>
        <source>Month after</source>
        <translation>الشهر التالي</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page down</translation>
    </message>
</context>
<context>
    <name>CalendarSources</name>
    <message>
        <source>Back to the day</source>
        <translation>العودة إلى اليوم</translation>
    </message>
    <message>
        <source>Your calendars</source>
        <translation>تقاويمك</translation>
    </message>
    <message>
        <source>File…</source>
        <translation>ملف…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>مجلد…</translation>
    </message>
    <message>
        <source>Write a path, or drop a file here</source>
        <translation>اكتب مسارًا أو أفلت ملفًا هنا</translation>
    </message>
    <message>
        <source>Take %1 off the list</source>
        <translation>إزالة %1 من القائمة</translation>
    </message>
    <message>
        <source>Take off the list</source>
        <translation>إزالة من القائمة</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Weeks begin on</source>
        <translation>يبدأ الأسبوع يوم</translation>
    </message>
    <message>
        <source>Add a calendar file</source>
        <translation>إضافة ملف تقويم</translation>
    </message>
    <message>
        <source>Calendars (*.ics)</source>
        <translation>تقاويم (*.ics)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
    <message>
        <source>Add a folder of calendars</source>
        <translation>إضافة مجلد تقاويم</translation>
    </message>
    <message>
        <source>Show the next event in the strip</source>
        <translation>عرض الموعد التالي في الشريط</translation>
    </message>
</context>
<context>
    <name>CalendarView</name>
    <message>
        <source>day</source>
        <translation>يوم</translation>
    </message>
    <message>
        <source>today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>open event</source>
        <translation>فتح الموعد</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 س</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 ي</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>رابط</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ملفات</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>لا ملفات</numerusform>
            <numerusform>ملف واحد</numerusform>
            <numerusform>ملفان</numerusform>
            <numerusform>%n ملفات</numerusform>
            <numerusform>%n ملفًا</numerusform>
            <numerusform>%n ملف</numerusform>
        </translation>
    </message>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ولا غيره</numerusform>
            <numerusform>وملف آخر</numerusform>
            <numerusform>وملفان آخران</numerusform>
            <numerusform>و%n ملفات أخرى</numerusform>
            <numerusform>و%n ملفًا آخر</numerusform>
            <numerusform>و%n ملف آخر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n item(s)</source>
        <translation>
            <numerusform>لا عناصر</numerusform>
            <numerusform>عنصر واحد</numerusform>
            <numerusform>عنصران</numerusform>
            <numerusform>%n عناصر</numerusform>
            <numerusform>%n عنصرًا</numerusform>
            <numerusform>%n عنصر</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClipboardCard</name>
    <message>
        <source>favourite</source>
        <translation>مفضّل</translation>
    </message>
</context>
<context>
    <name>ClipboardGrid</name>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>No longer a favourite</source>
        <translation>إزالة من المفضّلة</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>إضافة إلى المفضّلة</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Remove all but favourites…</source>
        <translation>حذف الكل عدا المفضّلة…</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>What was copied</source>
        <translation>ما نُسخ</translation>
    </message>
    <message>
        <source>Remove all but the favourites?</source>
        <translation>حذف الكل عدا المفضّلة؟</translation>
    </message>
    <message>
        <source>What was copied goes for good. It cannot be brought back.</source>
        <translation>يُحذف ما نُسخ نهائيًا ولا يمكن استرجاعه.</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>حذف الكل</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>إبقاء</translation>
    </message>
</context>
<context>
    <name>ClipboardView</name>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>مفضّل</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>remove</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>روابط</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>صور</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ملفات</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>المفضّلة</translation>
    </message>
</context>
<context>
    <name>CounterActions</name>
    <message>
        <source>Undo the last count</source>
        <translation>تراجع عن العدّة الأخيرة</translation>
    </message>
    <message>
        <source>Resume</source>
        <comment>@action:button the session</comment>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>Pause</source>
        <comment>@action:button the session</comment>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Start again from zero</source>
        <translation>البدء من الصفر</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Finish</source>
        <comment>@action:button the session</comment>
        <translation>إنهاء</translation>
    </message>
</context>
<context>
    <name>CounterPhrase</name>
    <message>
        <source>Phrase before</source>
        <translation>الذِّكر السابق</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>الذِّكر التالي</translation>
    </message>
</context>
<context>
    <name>CounterTap</name>
    <message>
        <source>Count %1</source>
        <comment>@action:button</comment>
        <translation>عُدَّ %1</translation>
    </message>
</context>
<context>
    <name>CounterTargets</name>
    <message>
        <source>Targets</source>
        <translation>الأهداف</translation>
    </message>
    <message>
        <source>Target %1</source>
        <translation>الهدف %1</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>a count without a target</comment>
        <translation>مفتوح</translation>
    </message>
    <message>
        <source>Another target</source>
        <translation>هدف آخر</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>الهدف</translation>
    </message>
    <message>
        <source>Set</source>
        <comment>@action:button a target</comment>
        <translation>تعيين</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>CounterView</name>
    <message>
        <source>resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>finish</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>count on</source>
        <translation>متابعة العدّ</translation>
    </message>
    <message>
        <source>count</source>
        <translation>عدّ</translation>
    </message>
    <message>
        <source>set a target</source>
        <translation>تعيين هدف</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>pause</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Start again from zero?</source>
        <translation>هل تبدأ من الصفر؟</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>تصفير</translation>
    </message>
    <message>
        <source>Finish instead</source>
        <translation>إنهاء بدلًا من ذلك</translation>
    </message>
    <message>
        <source>Keep counting</source>
        <translation>متابعة العدّ</translation>
    </message>
</context>
<context>
    <name>DayPicker</name>
    <message>
        <source>Days</source>
        <translation>الأيام</translation>
    </message>
</context>
<context>
    <name>DockApps</name>
    <message>
        <source>Applications</source>
        <translation>التطبيقات</translation>
    </message>
    <message>
        <source>Search applications</source>
        <translation>ابحث في التطبيقات</translation>
    </message>
    <message>
        <source>Reading the applications…</source>
        <translation>تُقرأ التطبيقات…</translation>
    </message>
    <message>
        <source>No application goes by this name</source>
        <translation>لا تطبيق بهذا الاسم</translation>
    </message>
    <message>
        <source>No applications were found</source>
        <translation>لم يُعثر على تطبيقات</translation>
    </message>
    <message>
        <source>The desktop’s menus have none, or they cannot be read.</source>
        <translation>قوائم سطح المكتب خالية منها، أو لا يمكن قراءتها.</translation>
    </message>
</context>
<context>
    <name>DockClaudeWidget</name>
    <message>
        <source>%1: %2</source>
        <comment>assistants, what is known</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing of theirs was found yet</source>
        <translation>لم يُعثر على شيء منها بعد</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>span of a limit, when it is reset</comment>
        <translation>%1 · %2</translation>
    </message>
</context>
<context>
    <name>DockHead</name>
    <message>
        <source>Add to this workspace</source>
        <translation>أضف إلى مساحة العمل هذه</translation>
    </message>
    <message>
        <source>This workspace</source>
        <translation>مساحة العمل هذه</translation>
    </message>
    <message>
        <source>Application…</source>
        <translation>تطبيق…</translation>
    </message>
    <message>
        <source>Tool…</source>
        <translation>أداة…</translation>
    </message>
    <message>
        <source>Link…</source>
        <translation>رابط…</translation>
    </message>
    <message>
        <source>Files…</source>
        <translation>ملفات…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>مجلد…</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>فاصل</translation>
    </message>
    <message>
        <source>Widgets…</source>
        <translation>بطاقات…</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>إعادة التسمية…</translation>
    </message>
    <message>
        <source>Move it before</source>
        <translation>قدّمها</translation>
    </message>
    <message>
        <source>Move it behind</source>
        <translation>أخّرها</translation>
    </message>
    <message>
        <source>New workspace</source>
        <translation>مساحة عمل جديدة</translation>
    </message>
    <message>
        <source>Dock settings</source>
        <translation>إعدادات الرصيف</translation>
    </message>
    <message>
        <source>Remove…</source>
        <translation>إزالة…</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>إزالة %1؟</translation>
    </message>
    <message>
        <source>Its items go with it. What they lead to stays where it is.</source>
        <translation>تذهب عناصرها معها. أما ما تقود إليه فيبقى مكانه.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>إبقاء</translation>
    </message>
    <message>
        <source>Choose files for the dock</source>
        <translation>اختر ملفات للرصيف</translation>
    </message>
    <message>
        <source>Choose a folder for the dock</source>
        <translation>اختر مجلدًا للرصيف</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
</context>
<context>
    <name>DockItemMenu</name>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>إعادة التسمية…</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>يبقى</translation>
    </message>
    <message>
        <source>For an hour</source>
        <translation>لساعة</translation>
    </message>
    <message>
        <source>Until Velvetnook closes</source>
        <translation>حتى يُغلق Velvetnook</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <translation>نقل إلى %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
</context>
<context>
    <name>DockItemsPage</name>
    <message>
        <source>Nothing lies here yet</source>
        <translation>لا شيء هنا بعد</translation>
    </message>
    <message>
        <source>Drop files, applications or links here, or press +.</source>
        <translation>أفلت هنا ملفات أو تطبيقات أو روابط، أو اضغط +.</translation>
    </message>
</context>
<context>
    <name>DockLink</name>
    <message>
        <source>Link</source>
        <translation>رابط</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>example.org</source>
        <translation>example.org</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>as the address</source>
        <translation>كما في العنوان</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
</context>
<context>
    <name>DockName</name>
    <message>
        <source>Name of the workspace</source>
        <translation>اسم مساحة العمل</translation>
    </message>
    <message>
        <source>Name of the item</source>
        <translation>اسم العنصر</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>إعادة التسمية</translation>
    </message>
</context>
<context>
    <name>DockPageHead</name>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
</context>
<context>
    <name>DockPlainWidget</name>
    <message>
        <source>Today’s Name</source>
        <translation>اسم اليوم</translation>
    </message>
</context>
<context>
    <name>DockStatsWidget</name>
    <message>
        <source>%1: %2 %3</source>
        <comment>monitor, processor, its use</comment>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>CPU, 18%</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>DockSurface</name>
    <message>
        <source>Dock</source>
        <translation>الرصيف</translation>
    </message>
</context>
<context>
    <name>DockTab</name>
    <message>
        <source>Workspaces</source>
        <translation>مساحات العمل</translation>
    </message>
</context>
<context>
    <name>DockTile</name>
    <message>
        <source>not there any more</source>
        <translation>لم يعد موجودًا</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>فاصل</translation>
    </message>
</context>
<context>
    <name>DockTimeWidget</name>
    <message>
        <source>%1 min</source>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 س %2 د</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>screen time, how long</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>today, 3 h 12 min</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Nothing is counted</source>
        <translation>لا يُحسب شيء</translation>
    </message>
    <message>
        <source>Nothing counted yet</source>
        <translation>لم يُحسب شيء بعد</translation>
    </message>
</context>
<context>
    <name>DockTools</name>
    <message>
        <source>Tools</source>
        <translation>الأدوات</translation>
    </message>
</context>
<context>
    <name>DockWeatherWidget</name>
    <message>
        <source>%1: %2</source>
        <comment>weather, its words</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>place, rain</comment>
        <translation>%1 · %2</translation>
    </message>
</context>
<context>
    <name>DockWidgets</name>
    <message>
        <source>Widgets</source>
        <translation>البطاقات</translation>
    </message>
</context>
<context>
    <name>EmojiCell</name>
    <message>
        <source>pinned</source>
        <translation>مثبّت</translation>
    </message>
</context>
<context>
    <name>EmojiView</name>
    <message>
        <source>move</source>
        <translation>تنقّل</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>pin</source>
        <translation>تثبيت</translation>
    </message>
    <message>
        <source>Search emoji</source>
        <translation>بحث في الرموز</translation>
    </message>
    <message>
        <source>Skin tone</source>
        <translation>لون البشرة</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>الرموز التعبيرية</translation>
    </message>
</context>
<context>
    <name>EmojiViewModel</name>
    <message>
        <source>Used before</source>
        <translation>المستعملة من قبل</translation>
    </message>
    <message>
        <source>Smileys and people</source>
        <translation>وجوه وأشخاص</translation>
    </message>
    <message>
        <source>Animals and nature</source>
        <translation>حيوان وطبيعة</translation>
    </message>
    <message>
        <source>Food and drink</source>
        <translation>طعام وشراب</translation>
    </message>
    <message>
        <source>Travel and places</source>
        <translation>سفر وأماكن</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>أنشطة</translation>
    </message>
    <message>
        <source>Objects, symbols and flags</source>
        <translation>أشياء ورموز وأعلام</translation>
    </message>
    <message>
        <source>What you use shows here</source>
        <translation>يظهر هنا ما تستعمله</translation>
    </message>
    <message>
        <source>No emoji by that name</source>
        <translation>لا رمز بهذا الاسم</translation>
    </message>
    <message>
        <source>No skin tone</source>
        <translation>بلا لون بشرة</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Medium light</source>
        <translation>فاتح متوسط</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>متوسط</translation>
    </message>
    <message>
        <source>Medium dark</source>
        <translation>داكن متوسط</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>Allow location access to calculate prayer times for where you are.</source>
        <translation>اسمح بالوصول إلى الموقع لحساب مواقيت الصلاة حيث أنت.</translation>
    </message>
    <message>
        <source>The next prayer is too close for this buffer. Try an ordinary timer or reduce the buffer.</source>
        <translation>الصلاة القادمة أقرب من هذه المهلة. جرّب مؤقّتًا عاديًا أو قلّل المهلة.</translation>
    </message>
    <message>
        <source>This item was removed.</source>
        <translation>أُزيل هذا العنصر.</translation>
    </message>
    <message>
        <source>Total timer duration cannot exceed 365 days.</source>
        <translation>لا تتجاوز مدة المؤقّت كلها ٣٦٥ يومًا.</translation>
    </message>
    <message>
        <source>A title is one line of at most 200 characters</source>
        <translation>العنوان سطر واحد من ٢٠٠ حرف على الأكثر</translation>
    </message>
    <message>
        <source>Choose a city or use your location.</source>
        <translation>اختر مدينة أو استعمل موقعك.</translation>
    </message>
    <message>
        <source>The header has room for eight. Take one out first.</source>
        <translation>تتسع الترويسة لثمانية. أخرج واحدة أولًا.</translation>
    </message>
    <message>
        <source>Choose between 1 minute and 365 days.</source>
        <translation>اختر بين دقيقة واحدة و٣٦٥ يومًا.</translation>
    </message>
    <message>
        <source>Target must be between 1 and 1,000,000</source>
        <translation>يجب أن يكون الهدف بين ١ و١٬٠٠٠٬٠٠٠</translation>
    </message>
    <message>
        <source>Confirm before resetting a nonempty session</source>
        <translation>أكّد قبل تصفير جلسة غير فارغة</translation>
    </message>
    <message>
        <source>Nothing was removed in the last 30 seconds</source>
        <translation>لم يُحذف شيء في آخر ٣٠ ثانية</translation>
    </message>
    <message>
        <source>A note needs a title or a text</source>
        <translation>تحتاج الملاحظة إلى عنوان أو نص</translation>
    </message>
    <message>
        <source>Invalid timer</source>
        <translation>مؤقّت غير صالح</translation>
    </message>
    <message>
        <source>A stopwatch has no length.</source>
        <translation>ساعة الإيقاف لا مدة لها.</translation>
    </message>
    <message>
        <source>Prayer times are known for dates from 1900 to 2200</source>
        <translation>تُعرف أوقات الصلاة للتواريخ من ١٩٠٠ إلى ٢٢٠٠</translation>
    </message>
    <message>
        <source>The buffer must be between 0 and 120 minutes</source>
        <translation>يجب أن تكون المهلة بين ٠ و١٢٠ دقيقة</translation>
    </message>
    <message>
        <source>Write a number and two units, such as 5 km to mi</source>
        <translation>اكتب عددًا ووحدتين، مثل 5 km to mi</translation>
    </message>
    <message>
        <source>Choose compatible units and a finite number</source>
        <translation>اختر وحدات متوافقة وعددًا محدودًا</translation>
    </message>
    <message>
        <source>Invalid backup</source>
        <translation>نسخة احتياطية غير صالحة</translation>
    </message>
    <message>
        <source>Backup exceeds 50 MB</source>
        <translation>تتجاوز النسخة الاحتياطية ٥٠ ميغابايت</translation>
    </message>
    <message>
        <source>Invalid native settings</source>
        <translation>إعدادات غير صالحة</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>القرص ممتلئ</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>خطأ في القراءة من القرص أو الكتابة عليه</translation>
    </message>
    <message>
        <source>database is locked</source>
        <translation>قاعدة البيانات مقفلة</translation>
    </message>
    <message>
        <source>attempt to write a readonly database</source>
        <translation>قاعدة البيانات للقراءة فقط</translation>
    </message>
    <message>
        <source>A little remembrance</source>
        <translation>شيء من الذِّكر</translation>
    </message>
    <message>
        <source>Velvetnook — Preview</source>
        <translation>Velvetnook — معاينة</translation>
    </message>
    <message>
        <source>A quiet moment for remembrance.</source>
        <translation>لحظة هادئة للذِّكر.</translation>
    </message>
    <message>
        <source>Velvetnook timer</source>
        <translation>مؤقّت Velvetnook</translation>
    </message>
    <message>
        <source>A note</source>
        <translation>الملاحظة</translation>
    </message>
    <message>
        <source>The scratchpad</source>
        <translation>المسوّدة</translation>
    </message>
    <message>
        <source>There is no unit “%1”; the nearest: %2</source>
        <translation>لا توجد وحدة «%1»؛ أقربها: %2</translation>
    </message>
    <message>
        <source>There is no unit “%1”; there are: %2</source>
        <translation>لا توجد وحدة «%1»؛ الموجود: %2</translation>
    </message>
    <message>
        <source>There is no time zone “%1”</source>
        <translation>لا توجد منطقة زمنية «%1»</translation>
    </message>
    <message>
        <source>%1 holds at most 1,000,000 bytes</source>
        <translation>%1: بحد أقصى ١٬٠٠٠٬٠٠٠ بايت</translation>
    </message>
    <message>
        <source>%1 finished.</source>
        <translation>انتهى: %1</translation>
    </message>
    <message>
        <source>This workspace is not there any more</source>
        <translation>لم تعد مساحة العمل هذه موجودة</translation>
    </message>
    <message>
        <source>This item is not there any more</source>
        <translation>لم يعد هذا العنصر موجودًا</translation>
    </message>
    <message>
        <source>A workspace has room for 64 items. Take one out first.</source>
        <translation>تتسع مساحة العمل لأربعة وستين عنصرًا. أخرج منها واحدًا أولًا.</translation>
    </message>
    <message>
        <source>This is in the workspace already</source>
        <translation>هذا في مساحة العمل من قبل</translation>
    </message>
    <message>
        <source>A name is one line of 1 to 80 characters</source>
        <translation>الاسم سطر واحد من 1 إلى 80 محرفًا</translation>
    </message>
    <message>
        <source>There is no such tool</source>
        <translation>لا توجد أداة كهذه</translation>
    </message>
    <message>
        <source>This address is too long</source>
        <translation>هذا العنوان طويل جدًا</translation>
    </message>
    <message>
        <source>The dock has room for 12 workspaces. Remove one first.</source>
        <translation>يتسع الرصيف لاثنتي عشرة مساحة عمل. أزل واحدة أولًا.</translation>
    </message>
    <message>
        <source>The last workspace stays</source>
        <translation>تبقى مساحة العمل الأخيرة</translation>
    </message>
    <message>
        <source>This application is not installed any more</source>
        <translation>لم يعد هذا التطبيق مثبّتًا</translation>
    </message>
    <message>
        <source>The application&apos;s command line is not valid</source>
        <translation>سطر أوامر هذا التطبيق غير صالح</translation>
    </message>
    <message>
        <source>It could not be started</source>
        <translation>تعذّر تشغيله</translation>
    </message>
    <message>
        <source>No terminal was found to start it in</source>
        <translation>لم تُوجد طرفية لتشغيله فيها</translation>
    </message>
    <message>
        <source>This file is not there any more</source>
        <translation>لم يعد هذا الملف موجودًا</translation>
    </message>
    <message>
        <source>Nothing was found to open it with</source>
        <translation>لم يُوجد ما يفتحه</translation>
    </message>
    <message>
        <source>This is no web address</source>
        <translation>هذا ليس عنوان ويب</translation>
    </message>
    <message>
        <source>The system&apos;s package manager installed Velvetnook and updates it</source>
        <translation>ثبّت مدير حزم النظام Velvetnook وهو يحدّثه</translation>
    </message>
    <message>
        <source>A development build does not look for updates</source>
        <translation>لا يبحث إصدار التطوير عن تحديثات</translation>
    </message>
    <message>
        <source>This build has no updates</source>
        <translation>ليس لهذا الإصدار تحديثات</translation>
    </message>
    <message>
        <source>The server of updates did not answer. Please try again tomorrow.</source>
        <translation>لم يجب خادم التحديثات. حاول غدًا.</translation>
    </message>
    <message>
        <source>What was sent is no signed feed</source>
        <translation>ما أُرسل ليس بيانًا موقّعًا</translation>
    </message>
    <message>
        <source>The signature of the feed does not hold</source>
        <translation>توقيع البيان لا يصح</translation>
    </message>
    <message>
        <source>The feed is signed, but says what it must not</source>
        <translation>البيان موقّع، لكنه يقول ما لا يجوز</translation>
    </message>
    <message>
        <source>The feed is not meant for this build</source>
        <translation>ليس البيان لهذا الإصدار</translation>
    </message>
    <message>
        <source>The feed is older than one that was seen already</source>
        <translation>البيان أقدم من بيان سبقت رؤيته</translation>
    </message>
    <message>
        <source>Credential hidden · remove this saved entry</source>
        <translation>بيانات سرية مخفية · احذف هذا العنصر المحفوظ</translation>
    </message>
    <message>
        <source>Copied image</source>
        <translation>صورة منسوخة</translation>
    </message>
    <message>
        <source>This saved image is damaged.</source>
        <translation>هذه الصورة المحفوظة تالفة.</translation>
    </message>
    <message>
        <source>This saved entry cannot be opened.</source>
        <translation>لا يمكن فتح هذا العنصر المحفوظ.</translation>
    </message>
    <message>
        <source>The clipboard could not be updated. Try copying again.</source>
        <translation>تعذّر تحديث الحافظة. حاول النسخ مجددًا.</translation>
    </message>
    <message>
        <source>Clipboard image is too large or could not be read.</source>
        <translation>الصورة المنسوخة كبيرة جدًا أو تعذّرت قراءتها.</translation>
    </message>
    <message>
        <source>Clipboard image could not be decoded</source>
        <translation>تعذّر فكّ الصورة المنسوخة</translation>
    </message>
    <message>
        <source>Cannot encode clipboard preview</source>
        <translation>تعذّر إنشاء معاينة</translation>
    </message>
    <message>
        <source>These clipboard file references could not be saved.</source>
        <translation>تعذّر حفظ مراجع هذه الملفات.</translation>
    </message>
    <message>
        <source>Invalid clipboard text</source>
        <translation>نص منسوخ غير صالح</translation>
    </message>
    <message>
        <source>The application that copied does not answer.</source>
        <translation>التطبيق الذي نسخ لا يجيب.</translation>
    </message>
    <message>
        <source>What was copied is too large to keep.</source>
        <translation>ما نُسخ أكبر من أن يُحفظ.</translation>
    </message>
    <message>
        <source>The clipboard history has no room for this.</source>
        <translation>لا متسع لهذا في السجل.</translation>
    </message>
    <message>
        <source>There is no keyring here to keep the clipboard&apos;s key in</source>
        <translation>لا حافظة مفاتيح هنا لحفظ مفتاح السجل</translation>
    </message>
    <message>
        <source>The clipboard&apos;s key in the keyring is damaged</source>
        <translation>مفتاح السجل في حافظة المفاتيح تالف</translation>
    </message>
    <message>
        <source>The keyring is locked. Unlock it, and try again.</source>
        <translation>حافظة المفاتيح مقفلة. افتحها ثم حاول من جديد.</translation>
    </message>
    <message>
        <source>There is no keyring (Secret Service) here to keep the key in.</source>
        <translation>لا توجد حافظة مفاتيح (Secret Service) هنا ليُحفظ المفتاح فيها.</translation>
    </message>
    <message>
        <source>There is no default keyring to keep the key in. Make one first.</source>
        <translation>لا حافظة مفاتيح افتراضية ليُحفظ المفتاح فيها. أنشئ واحدة أولًا.</translation>
    </message>
    <message>
        <source>Only http:// and https:// addresses can be saved</source>
        <translation>لا تُحفظ إلا عناوين http:// و https://</translation>
    </message>
    <message>
        <source>An address has no spaces, backslashes or control characters</source>
        <translation>لا يحوي العنوان مسافات أو شرطات خلفية أو محارف تحكّم</translation>
    </message>
    <message>
        <source>This address names no website</source>
        <translation>هذا العنوان لا يدل على موقع</translation>
    </message>
    <message>
        <source>There is nothing in the text for the shelf</source>
        <translation>لا شيء في النص ليوضع على الرف</translation>
    </message>
    <message>
        <source>A name has to show something</source>
        <translation>لا بد أن يظهر في الاسم شيء</translation>
    </message>
    <message>
        <source>That calendar is there already</source>
        <translation>هذا التقويم موجود</translation>
    </message>
    <message>
        <source>%1: It is no file of your own</source>
        <translation>الملف %1 ليس ملفك</translation>
    </message>
    <message>
        <source>%1: It is larger than a megabyte</source>
        <translation>الملف %1 أكبر من ميغابايت</translation>
    </message>
    <message>
        <source>%1: It has changed just now; try again</source>
        <translation>تغيّر %1 للتو؛ حاول ثانية</translation>
    </message>
    <message>
        <source>%1: It is not written as strict JSON. Nothing was changed</source>
        <translation>ليس %1 مكتوبًا بصيغة JSON صحيحة. لم يُغيَّر شيء</translation>
    </message>
    <message>
        <source>Check the %1 key and website selection (HTTP %2).</source>
        <translation>تحقّق من مفتاح %1 ومن اختيار الموقع (HTTP %2).</translation>
    </message>
    <message>
        <source>The player “%1” cannot do this: %2</source>
        <translation>لا يستطيع المشغّل «%1» ذلك: %2</translation>
    </message>
    <message>
        <source>The player “%1” does not answer.</source>
        <translation>المشغّل «%1» لا يجيب.</translation>
    </message>
    <message>
        <source>No browser that may be driven listens on port %1.</source>
        <translation>لا متصفّح يقبل التحكّم على المنفذ %1.</translation>
    </message>
    <message>
        <source>The browser on port %1 does not answer.</source>
        <translation>المتصفّح على المنفذ %1 لا يجيب.</translation>
    </message>
    <message>
        <source>This address is saved already, as “%1”</source>
        <translation>هذا العنوان محفوظ باسم «%1»</translation>
    </message>
    <message>
        <source>%1: it is no calendar.</source>
        <translation>%1: ليس تقويمًا.</translation>
    </message>
    <message>
        <source>%1: it is not there.</source>
        <translation>%1: غير موجود.</translation>
    </message>
    <message>
        <source>Gross payments</source>
        <translation>إجمالي المدفوعات</translation>
    </message>
    <message>
        <source>Refunds</source>
        <translation>المبالغ المستردّة</translation>
    </message>
    <message>
        <source>Payment fees</source>
        <translation>رسوم الدفع</translation>
    </message>
    <message>
        <source>Net payments</source>
        <translation>صافي المدفوعات</translation>
    </message>
    <message>
        <source>Payout movements</source>
        <translation>حركات التحويل</translation>
    </message>
    <message>
        <source>Charges and payments</source>
        <translation>العمليات والمدفوعات</translation>
    </message>
    <message>
        <source>Refund movements, less failed-refund reversals</source>
        <translation>حركات الاسترداد بعد طرح الاستردادات الفاشلة المعكوسة</translation>
    </message>
    <message>
        <source>Fees attached to these payment and refund entries</source>
        <translation>الرسوم المرفقة بقيود الدفع والاسترداد هذه</translation>
    </message>
    <message>
        <source>After refunds and attached fees; excludes disputes, transfers and tax liability</source>
        <translation>بعد الاستردادات والرسوم المرفقة، ومن غير النزاعات والتحويلات والضرائب</translation>
    </message>
    <message>
        <source>Net balance debits for payouts, less failures/cancellations. Not a bank settlement confirmation</source>
        <translation>صافي خصوم الرصيد للتحويلات بعد طرح الفاشلة والملغاة. ليس تأكيدًا للتسوية البنكية</translation>
    </message>
    <message>
        <source>balance-entry creation date in the selected period</source>
        <translation>بحسب تاريخ إنشاء القيد في الفترة المختارة</translation>
    </message>
    <message>
        <source>Stripe test mode</source>
        <translation>وضع Stripe التجريبي</translation>
    </message>
    <message>
        <source>Payment balance activity, not profit. Currencies stay separate.</source>
        <translation>حركة رصيد المدفوعات لا الربح. تبقى العملات منفصلة.</translation>
    </message>
    <message>
        <source>Visitors</source>
        <translation>الزوّار</translation>
    </message>
    <message>
        <source>Page views</source>
        <translation>مشاهدات الصفحات</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>الجلسات</translation>
    </message>
    <message>
        <source>Avg. session</source>
        <translation>متوسّط الجلسة</translation>
    </message>
    <message>
        <source>Bounce rate</source>
        <translation>معدّل الارتداد</translation>
    </message>
    <message>
        <source>Attributed revenue</source>
        <translation>الإيراد المنسوب</translation>
    </message>
    <message>
        <source>Attributed payments</source>
        <translation>المدفوعات المنسوبة</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>DataFast website total</source>
        <translation>مجموع موقع DataFast</translation>
    </message>
    <message>
        <source>selected period</source>
        <translation>الفترة المختارة</translation>
    </message>
    <message>
        <source>DataFast average session duration</source>
        <translation>متوسّط مدّة الجلسة في DataFast</translation>
    </message>
    <message>
        <source>DataFast attribution in the website currency; not a Stripe payout or accounting total</source>
        <translation>نسبة DataFast بعملة الموقع، وليست تحويلًا من Stripe ولا مجموعًا محاسبيًا</translation>
    </message>
    <message>
        <source>website attribution rules. No currencies or providers are combined.</source>
        <translation>قواعد النسبة للموقع. لا تُجمع العملات ولا المزوّدون.</translation>
    </message>
    <message>
        <source>DataFast returned no data for this period.</source>
        <translation>لم يُعد DataFast بيانات لهذه الفترة.</translation>
    </message>
    <message>
        <source>The provider returned an unexpected report. No totals were saved.</source>
        <translation>أعاد المزوّد تقريرًا غير متوقّع. لم تُحفظ مجاميع.</translation>
    </message>
    <message>
        <source>This period contains more than 10,000 balance entries. Choose a shorter period; partial totals are not shown.</source>
        <translation>في هذه الفترة أكثر من 10,000 قيد. اختر فترة أقصر، فالمجاميع الجزئية لا تُعرض.</translation>
    </message>
    <message>
        <source>The provider is limiting requests. Wait a moment, then refresh.</source>
        <translation>يحدّ المزوّد من الطلبات. انتظر قليلًا ثم حدّث.</translation>
    </message>
    <message>
        <source>The provider is temporarily unavailable. Try again shortly.</source>
        <translation>المزوّد غير متاح مؤقّتًا. حاول بعد قليل.</translation>
    </message>
    <message>
        <source>Allow analytics:read and access to this website, then reconnect.</source>
        <translation>اسمح بـ analytics:read وبالوصول إلى هذا الموقع، ثم صِل من جديد.</translation>
    </message>
    <message>
        <source>Allow Balance read access on this restricted Stripe key, then reconnect.</source>
        <translation>اسمح بقراءة الرصيد على مفتاح Stripe المقيّد هذا، ثم صِل من جديد.</translation>
    </message>
    <message>
        <source>This Stripe key has expired or is invalid. Replace it in Connections.</source>
        <translation>انتهت صلاحية مفتاح Stripe هذا أو أنه غير صالح. استبدله في الاتصالات.</translation>
    </message>
    <message>
        <source>This DataFast key has expired or is invalid. Replace it in Connections.</source>
        <translation>انتهت صلاحية مفتاح DataFast هذا أو أنه غير صالح. استبدله في الاتصالات.</translation>
    </message>
    <message>
        <source>Stripe did not answer. Check the connection, then refresh.</source>
        <translation>لم يجب Stripe. تحقّق من الاتصال ثم حدّث.</translation>
    </message>
    <message>
        <source>DataFast did not answer. Check the connection, then refresh.</source>
        <translation>لم يجب DataFast. تحقّق من الاتصال ثم حدّث.</translation>
    </message>
    <message>
        <source>A key is one word of letters, digits and signs.</source>
        <translation>المفتاح كلمة واحدة من حروف وأرقام وعلامات.</translation>
    </message>
    <message>
        <source>This is a secret Stripe test key, whose figures would look like real ones. Make a restricted test key (rk_test_) with Balance read access at Stripe, and connect that.</source>
        <translation>هذا مفتاح Stripe تجريبي سرّي تبدو أرقامه كالحقيقية. أنشئ لدى Stripe مفتاحًا تجريبيًا مقيّدًا (rk_test_) بقراءة الرصيد وصِله.</translation>
    </message>
    <message>
        <source>This is a secret Stripe key: whoever has it can move money, and to read the balance needs no such power. Make a restricted key (rk_live_ or rk_test_) with Balance read access at Stripe, and connect that.</source>
        <translation>هذا مفتاح Stripe سرّي، ومن يملكه يستطيع تحريك المال، وقراءة الرصيد لا تحتاج إلى ذلك. أنشئ لدى Stripe مفتاحًا مقيّدًا (rk_live_ أو rk_test_) بقراءة الرصيد وصِله.</translation>
    </message>
    <message>
        <source>This is no restricted Stripe key. Make one (rk_live_ or rk_test_) with Balance read access at Stripe, and connect that.</source>
        <translation>ليس هذا مفتاح Stripe مقيّدًا. أنشئ واحدًا (rk_live_ أو rk_test_) بقراءة الرصيد لدى Stripe وصِله.</translation>
    </message>
    <message>
        <source>There is no session bus here, so no player can be asked.</source>
        <translation>لا ناقل جلسة هنا، فلا يمكن سؤال أيّ مشغّل.</translation>
    </message>
    <message>
        <source>The session bus does not answer.</source>
        <translation>ناقل الجلسة لا يجيب.</translation>
    </message>
    <message>
        <source>The connected tab is not open any more. Connect another, or disconnect it.</source>
        <translation>اللسان الموصول لم يعد مفتوحًا. صِل غيره أو افصله.</translation>
    </message>
    <message>
        <source>Invalid playback details.</source>
        <translation>تفاصيل التشغيل غير صالحة.</translation>
    </message>
    <message>
        <source>Playback response is too large.</source>
        <translation>جواب التشغيل أكبر مما يجوز.</translation>
    </message>
    <message>
        <source>What listens on the port is no browser.</source>
        <translation>ليس على هذا المنفذ متصفّح.</translation>
    </message>
    <message>
        <source>The sounds are not installed.</source>
        <translation>الأصوات غير مثبّتة.</translation>
    </message>
    <message>
        <source>Updating forecast…</source>
        <translation>يجري تحديث التوقّعات…</translation>
    </message>
    <message>
        <source>Weather did not respond. Try again shortly.</source>
        <translation>لم تجب خدمة الطقس. حاول بعد قليل.</translation>
    </message>
    <message>
        <source>Weather is busy. Please try again in a few minutes.</source>
        <translation>خدمة الطقس مشغولة. حاول بعد بضع دقائق.</translation>
    </message>
    <message>
        <source>Weather is taking a break. Please try again in a few minutes.</source>
        <translation>خدمة الطقس في استراحة. حاول بعد بضع دقائق.</translation>
    </message>
    <message>
        <source>Weather is temporarily unavailable. Please try again shortly.</source>
        <translation>خدمة الطقس غير متاحة مؤقّتًا. حاول بعد قليل.</translation>
    </message>
    <message>
        <source>Forecast is out of date. Please try again shortly.</source>
        <translation>التوقّعات قديمة. حاول بعد قليل.</translation>
    </message>
    <message>
        <source>Forecast contains no usable temperatures</source>
        <translation>لا درجات حرارة صالحة في التوقّعات</translation>
    </message>
    <message>
        <source>Unsupported forecast units or date</source>
        <translation>وحدات التوقّعات أو تاريخها غير مدعومين</translation>
    </message>
    <message>
        <source>Choose a valid location</source>
        <translation>اختر مكانًا صالحًا</translation>
    </message>
    <message>
        <source>The refresh was cancelled.</source>
        <translation>أُلغي التحديث.</translation>
    </message>
    <message>
        <source>Sustained disk activity exceeded your threshold.</source>
        <translation>تجاوز نشاط القرص المستمر الحدّ الذي اخترته.</translation>
    </message>
    <message>
        <source>Sustained network activity exceeded your threshold.</source>
        <translation>تجاوز نشاط الشبكة المستمر الحدّ الذي اخترته.</translation>
    </message>
    <message>
        <source>Its process footprint grew over the last hour. Review the app to see why.</source>
        <translation>نمت ذاكرة عملياته في الساعة الأخيرة. راجع التطبيق لترى السبب.</translation>
    </message>
    <message>
        <source>This process has ended already.</source>
        <translation>انتهت هذه العملية من قبل.</translation>
    </message>
    <message>
        <source>The system cannot run without this process.</source>
        <translation>لا يعمل النظام بلا هذه العملية.</translation>
    </message>
    <message>
        <source>This is a part of the system&apos;s kernel.</source>
        <translation>هذا جزء من نواة النظام.</translation>
    </message>
    <message>
        <source>This process belongs to another user.</source>
        <translation>هذه العملية لمستخدم آخر.</translation>
    </message>
    <message>
        <source>Velvetnook itself runs under this process.</source>
        <translation>يعمل Velvetnook نفسه تحت هذه العملية.</translation>
    </message>
    <message>
        <source>Your session would end with this process.</source>
        <translation>تنتهي جلستك مع هذه العملية.</translation>
    </message>
    <message>
        <source>CPU stayed above %1% of one core.</source>
        <translation>بقي المعالج فوق %1٪ من نواة واحدة.</translation>
    </message>
    <message>
        <source>%1: high CPU load</source>
        <translation>%1: حمل مرتفع على المعالج</translation>
    </message>
    <message>
        <source>%1: high disk activity</source>
        <translation>%1: نشاط مرتفع للقرص</translation>
    </message>
    <message>
        <source>%1: high network activity</source>
        <translation>%1: نشاط مرتفع للشبكة</translation>
    </message>
    <message>
        <source>%1: growing memory</source>
        <translation>%1: ذاكرة تنمو</translation>
    </message>
    <message>
        <source>The list of recent files cannot be read.</source>
        <translation>تتعذّر قراءة قائمة الملفات الأخيرة.</translation>
    </message>
    <message>
        <source>The clipboard’s key is being made by %1. Try again.</source>
        <translation>يُنشئ %1 مفتاح الحافظة الآن. حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>A copied file has moved or access was revoked. Copy it again from the file manager.</source>
        <translation>نُقل ملف منسوخ أو سُحب إذن الوصول إليه. انسخه مجددًا من مدير الملفات.</translation>
    </message>
</context>
<context>
    <name>EventGroup</name>
    <message>
        <source>When it happens</source>
        <translation>عند وقوعه</translation>
    </message>
    <message>
        <source>When a timer ends</source>
        <translation>عند انتهاء مؤقّت</translation>
    </message>
    <message>
        <source>A notification, also while the panel is closed.</source>
        <translation>إشعار، حتى واللوحة مغلقة.</translation>
    </message>
    <message>
        <source>Friday invitation</source>
        <translation>دعوة الجمعة</translation>
    </message>
    <message>
        <source>Once each Friday, to send blessings upon the Prophet.</source>
        <translation>مرة كل جمعة، للصلاة على النبي ﷺ.</translation>
    </message>
    <message>
        <source>On Fridays at</source>
        <translation>أيام الجمعة عند</translation>
    </message>
</context>
<context>
    <name>ExclusionGroup</name>
    <message>
        <source>Keeping away</source>
        <translation>الابتعاد</translation>
    </message>
    <message>
        <source>Pause the strip</source>
        <translation>إيقاف الشريط مؤقتًا</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>Pause…</source>
        <translation>إيقاف مؤقت…</translation>
    </message>
    <message>
        <source>For half an hour</source>
        <translation>لنصف ساعة</translation>
    </message>
    <message>
        <source>For an hour</source>
        <translation>لساعة</translation>
    </message>
    <message>
        <source>Until tomorrow</source>
        <translation>حتى الغد</translation>
    </message>
    <message>
        <source>Not over these applications</source>
        <translation>ليس فوق هذه التطبيقات</translation>
    </message>
    <message>
        <source>By the name that their windows go by, such as vlc.</source>
        <translation>بالاسم الذي تُعرف به نوافذها، مثل vlc.</translation>
    </message>
    <message>
        <source>Add an application</source>
        <translation>إضافة تطبيق</translation>
    </message>
    <message>
        <source>Take out %1</source>
        <translation>إزالة %1</translation>
    </message>
</context>
<context>
    <name>FailureSurface</name>
    <message>
        <source>Velvetnook cannot open its data</source>
        <translation>لا يستطيع Velvetnook فتح بياناته</translation>
    </message>
    <message>
        <source>Nothing was changed: %1</source>
        <translation>لم يتغيّر شيء: %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>FileLine</name>
    <message>
        <source>Unpin %1</source>
        <translation>إلغاء تثبيت %1</translation>
    </message>
    <message>
        <source>Pin %1</source>
        <translation>تثبيت %1</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>إلغاء التثبيت</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>تثبيت</translation>
    </message>
</context>
<context>
    <name>FilesView</name>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>pin</source>
        <translation>تثبيت</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>البحث في الملفات</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>الأخيرة</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>المثبّتة</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>Show in its folder</source>
        <translation>إظهار في المجلد</translation>
    </message>
    <message>
        <source>Copy the path</source>
        <translation>نسخ المسار</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>إلغاء التثبيت</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>تثبيت</translation>
    </message>
</context>
<context>
    <name>FridayView</name>
    <message>
        <source>Friday settings…</source>
        <translation>إعدادات الجمعة…</translation>
    </message>
    <message>
        <source>Begin counting</source>
        <translation>ابدأ العدّ</translation>
    </message>
    <message>
        <source>Not today</source>
        <translation>ليس اليوم</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Dhuhr</source>
        <translation>الظهر</translation>
    </message>
</context>
<context>
    <name>HistoryBars</name>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
</context>
<context>
    <name>HistoryPhrases</name>
    <message>
        <source>Totals by phrase</source>
        <translation>المجموع لكل ذِكر</translation>
    </message>
    <message>
        <source>%1: %2 in %3</source>
        <comment>total of a phrase</comment>
        <translation>%1: %2 في %3</translation>
    </message>
    <message>
        <source>Nothing finished in this time</source>
        <translation>لا شيء مكتمل في هذه المدة</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>%1, %2 at %3</source>
        <comment>finished session</comment>
        <translation>%1، %2 في %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source> / %1</source>
        <comment>target behind a count</comment>
        <translation> / %1</translation>
    </message>
</context>
<context>
    <name>HistorySessions</name>
    <message>
        <source>Finished sessions</source>
        <translation>الجلسات المنتهية</translation>
    </message>
</context>
<context>
    <name>HistorySummary</name>
    <message>
        <source>Back to the counter</source>
        <translation>العودة إلى العدّاد</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Time that is added up</source>
        <translation>المدة المجموعة</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>7 d</source>
        <comment>days</comment>
        <translation>٧ أيام</translation>
    </message>
    <message>
        <source>30 d</source>
        <comment>days</comment>
        <translation>٣٠ يومًا</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>Counter settings…</source>
        <translation>إعدادات العدّاد…</translation>
    </message>
    <message>
        <source>back to the counter</source>
        <translation>العودة إلى العدّاد</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>الجلسات</translation>
    </message>
    <message>
        <source>By phrase</source>
        <translation>حسب الذِّكر</translation>
    </message>
    <message>
        <source>Nothing finished yet</source>
        <translation>لا شيء منتهٍ بعد</translation>
    </message>
    <message>
        <source>The history is off.</source>
        <translation>السجل متوقف.</translation>
    </message>
    <message>
        <source>A session that you finish is kept here.</source>
        <translation>كل جلسة تنهيها تُحفظ هنا.</translation>
    </message>
</context>
<context>
    <name>HomeCounterCard</name>
    <message>
        <source>Counter: %1, %2</source>
        <translation>العدّاد: %1، %2</translation>
    </message>
    <message>
        <source>Go on counting</source>
        <translation>متابعة العدّ</translation>
    </message>
</context>
<context>
    <name>HomeMonitorCard</name>
    <message>
        <source>Monitor</source>
        <translation>المراقب</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing can be sampled here.</source>
        <translation>لا يمكن القياس هنا.</translation>
    </message>
</context>
<context>
    <name>HomeNameCard</name>
    <message>
        <source>Today’s Name: %1</source>
        <translation>اسم اليوم: %1</translation>
    </message>
    <message>
        <source>Today’s Name</source>
        <translation>اسم اليوم</translation>
    </message>
</context>
<context>
    <name>HomePrayerCard</name>
    <message>
        <source>%1: %2, %3</source>
        <comment>next prayer, time left, time</comment>
        <translation>%1: %2، %3</translation>
    </message>
</context>
<context>
    <name>HomeTimerCard</name>
    <message>
        <source>Timer: %1 %2 %3</source>
        <translation>المؤقّت: %1 %2 %3</translation>
    </message>
</context>
<context>
    <name>HomeWeatherCard</name>
    <message>
        <source>Weather</source>
        <translation>الطقس</translation>
    </message>
    <message>
        <source>Weather: %1</source>
        <translation>الطقس: %1</translation>
    </message>
</context>
<context>
    <name>InsightChoices</name>
    <message>
        <source>Period</source>
        <translation>الفترة</translation>
    </message>
</context>
<context>
    <name>InsightConnection</name>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Connect Stripe</source>
        <translation>وصل Stripe</translation>
    </message>
    <message>
        <source>Connect DataFast</source>
        <translation>وصل DataFast</translation>
    </message>
    <message>
        <source>Make a restricted key with Balance read access at Stripe. It is kept in your keyring, is sent to Stripe alone and is never shown again.</source>
        <translation>أنشئ لدى Stripe مفتاحًا مقيّدًا بقراءة الرصيد. يُحفظ في حافظة مفاتيحك، ولا يُرسل إلا إلى Stripe، ولا يُعرض ثانية أبدًا.</translation>
    </message>
    <message>
        <source>Make a key with analytics:read at DataFast. It is kept in your keyring, is sent to DataFast alone and is never shown again.</source>
        <translation>أنشئ لدى DataFast مفتاحًا بصلاحية analytics:read. يُحفظ في حافظة مفاتيحك، ولا يُرسل إلا إلى DataFast، ولا يُعرض ثانية أبدًا.</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>المفتاح</translation>
    </message>
    <message>
        <source>Id of the website</source>
        <translation>معرّف الموقع</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>وصل</translation>
    </message>
    <message>
        <source>Remove the key</source>
        <translation>إزالة المفتاح</translation>
    </message>
</context>
<context>
    <name>InsightMissing</name>
    <message>
        <source>Its key stays in your keyring and goes to nobody else.</source>
        <translation>يبقى مفتاحه في حافظة مفاتيحك ولا يذهب إلى أحد سواه.</translation>
    </message>
    <message>
        <source>Connect…</source>
        <translation>وصل…</translation>
    </message>
    <message>
        <source>Connections…</source>
        <translation>الاتصالات…</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>حاول من جديد</translation>
    </message>
</context>
<context>
    <name>InsightReport</name>
    <message>
        <source>Currency</source>
        <translation>العملة</translation>
    </message>
</context>
<context>
    <name>InsightRow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>InsightWords</name>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>7 days</source>
        <translation>7 أيام</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30 يومًا</translation>
    </message>
    <message>
        <source>90 days</source>
        <translation>90 يومًا</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>هذا الشهر</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>هذه السنة</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Top pages</source>
        <translation>أكثر الصفحات</translation>
    </message>
    <message>
        <source>Referrers</source>
        <translation>المُحيلون</translation>
    </message>
    <message>
        <source>Lately</source>
        <translation>مؤخّرًا</translation>
    </message>
</context>
<context>
    <name>InsightsView</name>
    <message>
        <source>The key is in the keyring.</source>
        <translation>المفتاح في حافظة المفاتيح.</translation>
    </message>
    <message>
        <source>The key was removed from the keyring.</source>
        <translation>أُزيل المفتاح من حافظة المفاتيح.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Connections…</source>
        <translation>الاتصالات…</translation>
    </message>
</context>
<context>
    <name>LinkForm</name>
    <message>
        <source>Link to the source</source>
        <translation>رابط المصدر</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>ملاحظة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
</context>
<context>
    <name>LinkLine</name>
    <message>
        <source>Open %1</source>
        <translation>فتح %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
</context>
<context>
    <name>LinkNotice</name>
    <message>
        <source>The built-in dua collection remains unavailable until its source, translation and review records are complete.</source>
        <translation>تبقى مجموعة الأدعية المضمّنة غير متاحة حتى تكتمل سجلات مصدرها وترجمتها ومراجعتها.</translation>
    </message>
    <message>
        <source>This collection is awaiting source, translation, count-reference and qualified-review records. No new devotional excerpts are included in this build.</source>
        <translation>تنتظر هذه المجموعة سجلات المصدر والترجمة ومرجع العدد والمراجعة المؤهّلة. لا يتضمّن هذا الإصدار نصوصًا تعبّدية جديدة.</translation>
    </message>
    <message>
        <source>Open the existing dhikr starter collection</source>
        <translation>فتح مجموعة الأذكار الموجودة</translation>
    </message>
</context>
<context>
    <name>LinksView</name>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Change the bookmark</source>
        <translation>تعديل الإشارة المرجعية</translation>
    </message>
    <message>
        <source>New bookmark</source>
        <translation>إشارة مرجعية جديدة</translation>
    </message>
    <message>
        <source>Your dua bookmarks</source>
        <translation>إشاراتك المرجعية للأدعية</translation>
    </message>
    <message>
        <source>Find a bookmark</source>
        <translation>البحث عن إشارة مرجعية</translation>
    </message>
    <message>
        <source>Add a bookmark</source>
        <translation>إضافة إشارة مرجعية</translation>
    </message>
    <message>
        <source>Save a link to a source you choose. Personal bookmarks are not a reviewed Velvetnook collection.</source>
        <translation>احفظ رابطًا لمصدر تختاره. الإشارات الشخصية ليست مجموعة راجعها Velvetnook.</translation>
    </message>
    <message>
        <source>Search bookmarks</source>
        <translation>البحث في الإشارات</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>الإشارات المرجعية</translation>
    </message>
    <message>
        <source>No bookmark has these words</source>
        <translation>لا إشارة فيها هذه الكلمات</translation>
    </message>
    <message>
        <source>Nothing saved yet. Add one, or drop a link here.</source>
        <translation>لم يُحفظ شيء بعد. أضف رابطًا أو أفلته هنا.</translation>
    </message>
</context>
<context>
    <name>MonitorAlertBar</name>
    <message>
        <source>Review</source>
        <translation>مراجعة</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>تجاهل</translation>
    </message>
</context>
<context>
    <name>MonitorAlertOptions</name>
    <message>
        <source>Alerts</source>
        <translation>التنبيهات</translation>
    </message>
    <message>
        <source>When one application keeps the machine busy or its memory keeps growing.</source>
        <translation>عندما يشغل تطبيق الجهاز طويلًا أو تستمر ذاكرته في النمو.</translation>
    </message>
    <message>
        <source>Processor above</source>
        <translation>المعالج فوق</translation>
    </message>
    <message>
        <source>of one core, for so long</source>
        <translation>من نواة واحدة، لهذه المدة</translation>
    </message>
    <message>
        <source>For so long</source>
        <translation>لهذه المدة</translation>
    </message>
    <message>
        <source>Memory grown in an hour by</source>
        <translation>نمو الذاكرة في ساعة</translation>
    </message>
    <message>
        <source>Disk busier than</source>
        <translation>القرص أنشط من</translation>
    </message>
    <message>
        <source>for five minutes</source>
        <translation>لخمس دقائق</translation>
    </message>
    <message>
        <source>raises no alerts</source>
        <translation>لا يثير تنبيهات</translation>
    </message>
    <message>
        <source>Allow alerts</source>
        <translation>السماح بالتنبيهات</translation>
    </message>
</context>
<context>
    <name>MonitorAppPage</name>
    <message>
        <source>has ended</source>
        <translation>انتهى</translation>
    </message>
    <message>
        <source>No alerts about this application</source>
        <translation>لا تنبيهات عن هذا التطبيق</translation>
    </message>
    <message>
        <source>Alerts about this application</source>
        <translation>تنبيهات عن هذا التطبيق</translation>
    </message>
    <message>
        <source>Quit…</source>
        <translation>إنهاء…</translation>
    </message>
    <message>
        <source>Kill…</source>
        <translation>إنهاء قسري…</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>العمليات</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>المعالج</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>القرص</translation>
    </message>
</context>
<context>
    <name>MonitorApps</name>
    <message>
        <source>Applications</source>
        <translation>التطبيقات</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>المعالج</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>الذاكرة</translation>
    </message>
</context>
<context>
    <name>MonitorChartPage</name>
    <message>
        <source>What is shown</source>
        <translation>ما يُعرض</translation>
    </message>
    <message>
        <source>How far back</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>1 h</source>
        <translation>١ س</translation>
    </message>
    <message>
        <source>24 h</source>
        <translation>٢٤ س</translation>
    </message>
    <message>
        <source>7 d</source>
        <translation>٧ أيام</translation>
    </message>
    <message>
        <source>30 d</source>
        <translation>٣٠ يومًا</translation>
    </message>
    <message>
        <source>Nothing is recorded</source>
        <translation>لا شيء يُسجَّل</translation>
    </message>
    <message>
        <source>Nothing recorded yet</source>
        <translation>لم يُسجَّل شيء بعد</translation>
    </message>
    <message>
        <source>Reading the history…</source>
        <translation>جارٍ قراءة السجل…</translation>
    </message>
    <message>
        <source>The history keeps a figure a minute, on this computer only.</source>
        <translation>يحفظ السجل رقمًا كل دقيقة، في هذا الحاسوب فقط.</translation>
    </message>
    <message>
        <source>Record from now on</source>
        <translation>التسجيل من الآن</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>المحاولة مرة أخرى</translation>
    </message>
</context>
<context>
    <name>MonitorFoot</name>
    <message>
        <source>Battery %1</source>
        <translation>البطارية %1</translation>
    </message>
    <message>
        <source>Export image…</source>
        <translation>تصدير صورة…</translation>
    </message>
</context>
<context>
    <name>MonitorHead</name>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Esc</source>
        <comment>the key</comment>
        <translation>Esc</translation>
    </message>
</context>
<context>
    <name>MonitorMachinePage</name>
    <message>
        <source>All readings</source>
        <translation>كل القراءات</translation>
    </message>
    <message>
        <source>sensors, batteries and what is connected</source>
        <translation>المجسّات والبطاريات وما هو موصول</translation>
    </message>
</context>
<context>
    <name>MonitorMixerPage</name>
    <message>
        <source>Volumes</source>
        <translation>مستويات الصوت</translation>
    </message>
    <message>
        <source>of each application that has a sound</source>
        <translation>لكل تطبيق له صوت</translation>
    </message>
    <message>
        <source>Unmute %1</source>
        <translation>إعادة صوت %1</translation>
    </message>
    <message>
        <source>Mute %1</source>
        <translation>كتم %1</translation>
    </message>
    <message>
        <source>Volume of %1</source>
        <translation>صوت %1</translation>
    </message>
    <message>
        <source>No application has a sound now</source>
        <translation>لا تطبيق له صوت الآن</translation>
    </message>
</context>
<context>
    <name>MonitorOptionsPage</name>
    <message>
        <source>Recording and alerts</source>
        <translation>التسجيل والتنبيهات</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>A figure a minute, on this computer only; sampled every 10 seconds.</source>
        <translation>رقم كل دقيقة، في هذا الحاسوب فقط؛ يُقاس كل ١٠ ثوانٍ.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Kept for</source>
        <translation>يُحفظ</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>يومًا</translation>
    </message>
    <message>
        <source>7 days</source>
        <translation>٧ أيام</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>٣٠ يومًا</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>مسح…</translation>
    </message>
</context>
<context>
    <name>MonitorOverview</name>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>All readings</source>
        <translation>كل القراءات</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>مستويات الصوت</translation>
    </message>
    <message>
        <source>Recording and alerts</source>
        <translation>التسجيل والتنبيهات</translation>
    </message>
</context>
<context>
    <name>MonitorProcessRow</name>
    <message>
        <source>Quit %1</source>
        <translation>إنهاء %1</translation>
    </message>
    <message>
        <source>Del</source>
        <comment>the key</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>Kill %1</source>
        <translation>إنهاء %1 قسرًا</translation>
    </message>
</context>
<context>
    <name>MonitorSort</name>
    <message>
        <source>Sort by %1</source>
        <translation>الترتيب حسب %1</translation>
    </message>
</context>
<context>
    <name>MonitorTileCard</name>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1: %2 %3</translation>
    </message>
</context>
<context>
    <name>MonitorView</name>
    <message>
        <source>Monitor</source>
        <translation>المراقب</translation>
    </message>
    <message>
        <source>Nothing can be sampled here.</source>
        <translation>لا يمكن القياس هنا.</translation>
    </message>
    <message>
        <source>Taking the first sample…</source>
        <translation>جارٍ أخذ القياس الأول…</translation>
    </message>
</context>
<context>
    <name>MusicKeys</name>
    <message>
        <source>Previous</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>كتم</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>إلغاء الكتم</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>مستوى الصوت</translation>
    </message>
</context>
<context>
    <name>MusicPlayer</name>
    <message>
        <source>Choose what is shown</source>
        <translation>اختر ما يُعرض</translation>
    </message>
    <message>
        <source>Browser tab…</source>
        <translation>لسان متصفّح…</translation>
    </message>
    <message>
        <source>Show it in the strip</source>
        <translation>إظهاره في الشريط</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
</context>
<context>
    <name>MusicTabPage</name>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>A tab of your browser</source>
        <translation>لسان من متصفّحك</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>فصل</translation>
    </message>
    <message>
        <source>Start the browser with --remote-debugging-port=9222, play something, and choose its tab here. Only that tab is read, and nothing until you choose it. While the browser runs so, other programs on this computer can drive it too.</source>
        <translation>شغّل المتصفّح بالخيار ‎--remote-debugging-port=9222‎ وشغّل فيه شيئًا، ثم اختر لسانه هنا. لا يُقرأ إلا ذلك اللسان، ولا شيء قبل اختيارك. وما دام المتصفّح كذلك تستطيع برامج أخرى على هذا الحاسوب التحكّم فيه أيضًا.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>Show its tabs</source>
        <translation>عرض ألسنته</translation>
    </message>
</context>
<context>
    <name>MusicView</name>
    <message>
        <source>Private windows are never read</source>
        <translation>النوافذ الخاصّة لا تُقرأ أبدًا</translation>
    </message>
    <message>
        <source>Space</source>
        <comment>the key</comment>
        <translation>المسافة</translation>
    </message>
    <message>
        <source>play or pause</source>
        <translation>تشغيل أو إيقاف</translation>
    </message>
    <message>
        <source>seek %1 s</source>
        <translation>تقدّم %1 ث</translation>
    </message>
    <message>
        <source>mute</source>
        <translation>كتم</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>الموسيقى</translation>
    </message>
    <message>
        <source>What a player or a browser plays shows here by itself.</source>
        <translation>ما يشغّله مشغّل أو متصفّح يظهر هنا من تلقاء نفسه.</translation>
    </message>
    <message>
        <source>Connect a browser tab…</source>
        <translation>وصل لسان متصفّح…</translation>
    </message>
</context>
<context>
    <name>NameCardFoot</name>
    <message>
        <source>The one before</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>المصدر: %1</translation>
    </message>
    <message>
        <source>The next one</source>
        <translation>التالي</translation>
    </message>
</context>
<context>
    <name>NameCardHead</name>
    <message>
        <source>Name of the day</source>
        <translation>اسم اليوم</translation>
    </message>
    <message>
        <source>In the counter</source>
        <translation>في العدّاد</translation>
    </message>
    <message>
        <source>Count this</source>
        <translation>عُدَّ هذا</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>إزالة من المفضّلة</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>إضافة إلى المفضّلة</translation>
    </message>
    <message>
        <source>Unpin from the notch</source>
        <translation>إلغاء التثبيت من الشريط</translation>
    </message>
    <message>
        <source>Pin to the notch</source>
        <translation>تثبيت في الشريط</translation>
    </message>
</context>
<context>
    <name>NamesTabs</name>
    <message>
        <source>Lists</source>
        <translation>القوائم</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>الأسماء الحسنى</translation>
    </message>
    <message>
        <source>Phrases</source>
        <translation>الأذكار</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>المفضّلة</translation>
    </message>
</context>
<context>
    <name>NamesView</name>
    <message>
        <source>browse</source>
        <translation>تصفّح</translation>
    </message>
    <message>
        <source>pin to notch</source>
        <translation>تثبيت في الشريط</translation>
    </message>
    <message>
        <source>search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>count</source>
        <translation>عدّ</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>مفضّلة</translation>
    </message>
</context>
<context>
    <name>NoteEditor</name>
    <message>
        <source>Scratchpad</source>
        <translation>المسوّدة</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>ملاحظة</translation>
    </message>
    <message>
        <source>Whatever is on your mind</source>
        <translation>ما يخطر ببالك</translation>
    </message>
    <message>
        <source>Write something</source>
        <translation>اكتب شيئًا</translation>
    </message>
</context>
<context>
    <name>NoteFoot</name>
    <message>
        <source>Copy the text</source>
        <translation>نسخ النص</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>نُسخ</translation>
    </message>
    <message>
        <source>Take from the top</source>
        <translation>إنزال من الأعلى</translation>
    </message>
    <message>
        <source>Keep at the top</source>
        <translation>إبقاء في الأعلى</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
</context>
<context>
    <name>NoteListPane</name>
    <message>
        <source>Search notes</source>
        <translation>البحث في الملاحظات</translation>
    </message>
    <message>
        <source>New note</source>
        <translation>ملاحظة جديدة</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>الملاحظات</translation>
    </message>
</context>
<context>
    <name>NotesView</name>
    <message>
        <source>new note</source>
        <translation>ملاحظة جديدة</translation>
    </message>
    <message>
        <source>find</source>
        <translation>بحث</translation>
    </message>
</context>
<context>
    <name>OnboardingDone</name>
    <message>
        <source>That is all</source>
        <translation>هذا كل شيء</translation>
    </message>
    <message>
        <source>Three ways in, and none of them asks for your attention.</source>
        <translation>ثلاث طرق للدخول، ولا واحدة منها تشغلك.</translation>
    </message>
    <message>
        <source>Rest on the strip</source>
        <translation>قف على الشريط</translation>
    </message>
    <message>
        <source>The pointer opens it, leaving closes it.</source>
        <translation>يفتحه المؤشّر، ويغلقه الابتعاد.</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>تمرير</translation>
    </message>
    <message>
        <source>Search for anything</source>
        <translation>ابحث عن أي شيء</translation>
    </message>
    <message>
        <source>Tools, phrases, units, notes.</source>
        <translation>الأدوات والأذكار والوحدات والملاحظات.</translation>
    </message>
    <message>
        <source>Make it yours</source>
        <translation>اجعله كما تحب</translation>
    </message>
    <message>
        <source>Place, reminders and look wait in the settings.</source>
        <translation>المكان والتذكيرات والمظهر في الإعدادات.</translation>
    </message>
</context>
<context>
    <name>OnboardingPhrase</name>
    <message>
        <source>Choose a phrase to begin with</source>
        <translation>اختر ذِكرًا تبدأ به</translation>
    </message>
    <message>
        <source>It rests in the strip. You can change it at any time.</source>
        <translation>يبقى في الشريط، ويمكنك تغييره متى شئت.</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>الهدف</translation>
    </message>
</context>
<context>
    <name>OnboardingPicture</name>
    <message>
        <source>The strip at the top edge of a screen</source>
        <translation>الشريط عند الحافة العليا للشاشة</translation>
    </message>
</context>
<context>
    <name>OnboardingPlace</name>
    <message>
        <source>Prayer times for where you are</source>
        <translation>مواقيت الصلاة حيث أنت</translation>
    </message>
    <message>
        <source>Worked out on this computer, without the network.</source>
        <translation>تُحسب على هذا الحاسوب، بلا شبكة.</translation>
    </message>
    <message>
        <source>Search for a city</source>
        <translation>البحث عن مدينة</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>طريقة الحساب</translation>
    </message>
    <message>
        <source>Asr</source>
        <translation>العصر</translation>
    </message>
</context>
<context>
    <name>OnboardingReminders</name>
    <message>
        <source>A gentle reminder, if you like</source>
        <translation>تذكير لطيف، إن أحببت</translation>
    </message>
    <message>
        <source>It comes at your pace, inside your hours, and never insists.</source>
        <translation>يأتي على مهلك وفي أوقاتك، ولا يُلحّ أبدًا.</translation>
    </message>
    <message>
        <source>Gentle reminders</source>
        <translation>تذكيرات لطيفة</translation>
    </message>
    <message>
        <source>A notification with the pinned phrase.</source>
        <translation>إشعار بالذِّكر المثبّت.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>كل</translation>
    </message>
    <message>
        <source>30 min</source>
        <translation>٣٠ دقيقة</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>ساعة</translation>
    </message>
    <message>
        <source>2 hours</source>
        <translation>ساعتان</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>الأيام</translation>
    </message>
</context>
<context>
    <name>OnboardingSurface</name>
    <message>
        <source>Skip</source>
        <translation>تخطّي</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>ليس الآن</translation>
    </message>
    <message>
        <source>Welcome to Velvetnook</source>
        <translation>أهلًا بك في Velvetnook</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>ابدأ</translation>
    </message>
    <message>
        <source>Open Velvetnook</source>
        <translation>فتح Velvetnook</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
</context>
<context>
    <name>OnboardingTimes</name>
    <message>
        <source>Your times stand here</source>
        <translation>هنا تظهر مواقيتك</translation>
    </message>
</context>
<context>
    <name>OnboardingWelcome</name>
    <message>
        <source>A quiet place at the top of your screen</source>
        <translation>مكان هادئ في أعلى شاشتك</translation>
    </message>
    <message>
        <source>Rest the pointer on the strip and Velvetnook opens. Move away and it closes. Your counts and notes stay on this computer.</source>
        <translation>ضع المؤشّر على الشريط فيُفتح Velvetnook، وأبعده فيُغلق. عدّاتك وملاحظاتك تبقى على هذا الحاسوب.</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Count one</source>
        <translation>عُدَّ واحدة</translation>
    </message>
    <message>
        <source>Undo the last count</source>
        <translation>تراجع عن العدّة الأخيرة</translation>
    </message>
    <message>
        <source>Finish the session</source>
        <translation>إنهاء الجلسة</translation>
    </message>
    <message>
        <source>Pause the counter</source>
        <translation>إيقاف العدّاد مؤقتًا</translation>
    </message>
    <message>
        <source>Continue counting</source>
        <translation>متابعة العدّ</translation>
    </message>
    <message>
        <source>Pause reminders for an hour</source>
        <translation>إيقاف التذكيرات ساعة</translation>
    </message>
    <message>
        <source>Pause reminders until tomorrow</source>
        <translation>إيقاف التذكيرات حتى الغد</translation>
    </message>
    <message>
        <source>Resume reminders</source>
        <translation>استئناف التذكيرات</translation>
    </message>
    <message>
        <source>Start a focus timer</source>
        <translation>بدء مؤقّت تركيز</translation>
    </message>
    <message>
        <source>Start a stopwatch</source>
        <translation>بدء ساعة إيقاف</translation>
    </message>
    <message>
        <source>New note</source>
        <translation>ملاحظة جديدة</translation>
    </message>
    <message>
        <source>Forget what I choose here</source>
        <translation>انسَ ما أختاره هنا</translation>
    </message>
    <message>
        <source>Quit Velvetnook</source>
        <translation>إنهاء Velvetnook</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Do it</source>
        <translation>نفّذ</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Open Units</source>
        <translation>فتح الوحدات</translation>
    </message>
    <message>
        <source>Count this phrase</source>
        <translation>عدّ هذا الذِّكر</translation>
    </message>
    <message>
        <source>Read its meaning</source>
        <translation>قراءة معناه</translation>
    </message>
    <message>
        <source>Copy Arabic</source>
        <translation>نسخ العربية</translation>
    </message>
    <message>
        <source>Copy transliteration</source>
        <translation>نسخ الكتابة اللاتينية</translation>
    </message>
    <message>
        <source>Remove from the header</source>
        <translation>إزالة من الترويسة</translation>
    </message>
    <message>
        <source>Add to the header</source>
        <translation>إضافة إلى الترويسة</translation>
    </message>
    <message>
        <source>Open Timers</source>
        <translation>فتح المؤقّتات</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>Copy its name</source>
        <translation>نسخ اسمه</translation>
    </message>
    <message>
        <source>Copy text</source>
        <translation>نسخ النص</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>إلغاء التثبيت</translation>
    </message>
    <message>
        <source>Pin to the top</source>
        <translation>تثبيت في الأعلى</translation>
    </message>
    <message>
        <source>Open in the browser</source>
        <translation>فتح في المتصفّح</translation>
    </message>
    <message>
        <source>No browser could be opened.</source>
        <translation>تعذّر فتح متصفّح.</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>نسخ العنوان</translation>
    </message>
    <message>
        <source>Pin to the strip</source>
        <translation>تثبيت في الشريط</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>إزالة من المفضّلة</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>إضافة إلى المفضّلة</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 بعد %2</translation>
    </message>
    <message>
        <source>Pause %1</source>
        <translation>إيقاف %1 مؤقتًا</translation>
    </message>
    <message>
        <source>Resume %1</source>
        <translation>استئناف %1</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>Phrases</source>
        <translation>الأذكار</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>الأسماء الحسنى</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>الوحدات</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>الرموز التعبيرية</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>الملاحظات</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>الإشارات المرجعية</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message numerus="yes">
        <source>Start a timer of %n minute(s)</source>
        <translation>
            <numerusform>بدء مؤقّت من %n دقيقة</numerusform>
            <numerusform>بدء مؤقّت من دقيقة</numerusform>
            <numerusform>بدء مؤقّت من دقيقتين</numerusform>
            <numerusform>بدء مؤقّت من %n دقائق</numerusform>
            <numerusform>بدء مؤقّت من %n دقيقة</numerusform>
            <numerusform>بدء مؤقّت من %n دقيقة</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>بقي %1</translation>
    </message>
    <message>
        <source>Timers · %1</source>
        <translation>المؤقّتات · %1</translation>
    </message>
    <message>
        <source>Timers · paused at %1</source>
        <translation>المؤقّتات · متوقف عند %1</translation>
    </message>
    <message>
        <source>Prayer · %1</source>
        <translation>الصلاة · %1</translation>
    </message>
    <message>
        <source>Start %1 again</source>
        <translation>ابدأ %1 من جديد</translation>
    </message>
    <message>
        <source>Timers · finished</source>
        <translation>المؤقّتات · انتهى</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>ابدأ من جديد</translation>
    </message>
    <message>
        <source>Play or pause the music</source>
        <translation>تشغيل الموسيقى أو إيقافها</translation>
    </message>
    <message>
        <source>Next song</source>
        <translation>المقطع التالي</translation>
    </message>
    <message>
        <source>Play or pause the sounds</source>
        <translation>تشغيل الأصوات أو إيقافها</translation>
    </message>
    <message>
        <source>Open the dock</source>
        <translation>افتح الرصيف</translation>
    </message>
    <message>
        <source>Pause the clipboard</source>
        <translation>إيقاف الحافظة مؤقتًا</translation>
    </message>
    <message>
        <source>Resume the clipboard</source>
        <translation>استئناف الحافظة</translation>
    </message>
</context>
<context>
    <name>PaletteLine</name>
    <message>
        <source>Search tools, phrases, units, emoji and notes</source>
        <translation>ابحث في الأدوات والأذكار والوحدات والرموز والملاحظات</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
</context>
<context>
    <name>PaletteNothing</name>
    <message>
        <source>Nothing here by that name</source>
        <translation>لا شيء هنا بهذا الاسم</translation>
    </message>
    <message>
        <source>Try a tool, a phrase, “12 km in mi” or an emoji.</source>
        <translation>جرّب أداة أو ذِكرًا أو «12 km in mi» أو رمزًا تعبيريًا.</translation>
    </message>
</context>
<context>
    <name>PaletteSurface</name>
    <message>
        <source>Command palette</source>
        <translation>لوحة الأوامر</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>النتائج</translation>
    </message>
</context>
<context>
    <name>PanelBody</name>
    <message>
        <source>%1 is not part of this version yet.</source>
        <translation>«%1» ليست في هذا الإصدار بعد.</translation>
    </message>
    <message>
        <source>All tools</source>
        <translation>كل الأدوات</translation>
    </message>
    <message>
        <source>This view could not be drawn.</source>
        <translation>تعذّر رسم هذا العرض.</translation>
    </message>
    <message>
        <source>The reason is in the application&apos;s messages.</source>
        <translation>السبب في رسائل التطبيق.</translation>
    </message>
</context>
<context>
    <name>PanelHeader</name>
    <message>
        <source>Tools</source>
        <comment>@info:accessible tabs of the panel</comment>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>Ctrl+%1</source>
        <translation>Ctrl+%1</translation>
    </message>
    <message>
        <source>Search</source>
        <comment>@action:button opens the palette</comment>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>All tools</source>
        <translation>كل الأدوات</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation>Ctrl+,</translation>
    </message>
</context>
<context>
    <name>PlaceGroup</name>
    <message>
        <source>Place</source>
        <translation>المكان</translation>
    </message>
    <message>
        <source>No place yet</source>
        <translation>لا مكان بعد</translation>
    </message>
    <message>
        <source>Choose a city, or set it by its numbers.</source>
        <translation>اختر مدينة، أو حدّد المكان بالأرقام.</translation>
    </message>
    <message>
        <source>By its numbers</source>
        <translation>بالأرقام</translation>
    </message>
    <message>
        <source>For a place that is not in the list.</source>
        <translation>لمكان ليس في القائمة.</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>إظهار</translation>
    </message>
</context>
<context>
    <name>PlaceNumbers</name>
    <message>
        <source>Latitude, north positive</source>
        <translation>خط العرض، الشمال موجب</translation>
    </message>
    <message>
        <source>Longitude, east positive</source>
        <translation>خط الطول، الشرق موجب</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>المنطقة الزمنية</translation>
    </message>
    <message>
        <source>Country, for the automatic method</source>
        <translation>البلد، للطريقة التلقائية</translation>
    </message>
</context>
<context>
    <name>PlaceResults</name>
    <message>
        <source>Cities</source>
        <translation>المدن</translation>
    </message>
</context>
<context>
    <name>PlaceSearch</name>
    <message>
        <source>Search for a city</source>
        <translation>البحث عن مدينة</translation>
    </message>
</context>
<context>
    <name>PopupMenu</name>
    <message>
        <source>Menu</source>
        <translation>القائمة</translation>
    </message>
</context>
<context>
    <name>Prayer</name>
    <message>
        <source>Fajr</source>
        <translation>الفجر</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>الشروق</translation>
    </message>
    <message>
        <source>Dhuhr</source>
        <translation>الظهر</translation>
    </message>
    <message>
        <source>Asr</source>
        <translation>العصر</translation>
    </message>
    <message>
        <source>Maghrib</source>
        <translation>المغرب</translation>
    </message>
    <message>
        <source>Isha</source>
        <translation>العشاء</translation>
    </message>
</context>
<context>
    <name>PrayerDay</name>
    <message>
        <source>Week and month</source>
        <translation>الأسبوع والشهر</translation>
    </message>
    <message>
        <source>N</source>
        <comment>north on a compass</comment>
        <translation>ش</translation>
    </message>
    <message>
        <source>Qibla</source>
        <translation>القبلة</translation>
    </message>
</context>
<context>
    <name>PrayerFocusPage</name>
    <message>
        <source>Buffer</source>
        <translation>المهلة</translation>
    </message>
    <message>
        <source>Buffer before the prayer</source>
        <translation>المهلة قبل الصلاة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Use this deadline</source>
        <translation>اعتماد هذا الموعد</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
</context>
<context>
    <name>PrayerTablePage</name>
    <message>
        <source>Shown</source>
        <translation>المعروض</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>يوم</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>أسبوع</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>شهر</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>الشهر السابق</translation>
    </message>
    <message>
        <source>Previous week</source>
        <translation>الأسبوع السابق</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>الشهر التالي</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>الأسبوع التالي</translation>
    </message>
</context>
<context>
    <name>PrayerView</name>
    <message>
        <source>Prayer times</source>
        <translation>مواقيت الصلاة</translation>
    </message>
    <message>
        <source>Choose a place…</source>
        <translation>اختيار مكان…</translation>
    </message>
</context>
<context>
    <name>RecentConversions</name>
    <message>
        <source>Recent</source>
        <translation>الأخيرة</translation>
    </message>
</context>
<context>
    <name>ScreenTimeApps</name>
    <message>
        <source>Applications</source>
        <translation>التطبيقات</translation>
    </message>
    <message>
        <source>More about %1</source>
        <translation>المزيد عن %1</translation>
    </message>
    <message>
        <source>Count no more</source>
        <translation>لا يُحسب بعد الآن</translation>
    </message>
</context>
<context>
    <name>ScreenTimeOptions</name>
    <message>
        <source>Count the time at the screen</source>
        <translation>حساب الوقت أمام الشاشة</translation>
    </message>
    <message>
        <source>Known only to this computer; kept for 92 days and in no backup.</source>
        <translation>لا يعرفه إلا هذا الحاسوب؛ يُحفظ ٩٢ يومًا ولا يدخل أي نسخة احتياطية.</translation>
    </message>
    <message>
        <source>A pause begins after</source>
        <translation>تبدأ الراحة بعد</translation>
    </message>
    <message>
        <source>without a key or the pointer</source>
        <translation>بلا مفتاح ولا مؤشر</translation>
    </message>
    <message>
        <source>is not counted</source>
        <translation>لا يُحسب</translation>
    </message>
    <message>
        <source>Count again</source>
        <translation>حسابه من جديد</translation>
    </message>
</context>
<context>
    <name>ScreenTimeSummary</name>
    <message>
        <source>Period</source>
        <translation>الفترة</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>الأسبوع</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 س</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>h</source>
        <comment>hours</comment>
        <translation>س</translation>
    </message>
    <message>
        <source>min</source>
        <translation>د</translation>
    </message>
</context>
<context>
    <name>ScreenTimeView</name>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>الحساب…</translation>
    </message>
    <message>
        <source>Screen time</source>
        <translation>وقت الشاشة</translation>
    </message>
    <message>
        <source>Nothing is counted</source>
        <translation>لا شيء يُحسب</translation>
    </message>
    <message>
        <source>Nothing counted yet</source>
        <translation>لم يُحسب شيء بعد</translation>
    </message>
    <message>
        <source>How long which application is in front, known only to this computer.</source>
        <translation>كم يبقى كل تطبيق في المقدمة، لا يعرفه إلا هذا الحاسوب.</translation>
    </message>
    <message>
        <source>What is in front from now on is counted.</source>
        <translation>يُحسب ما يكون في المقدمة من الآن.</translation>
    </message>
    <message>
        <source>Count from now on</source>
        <translation>الحساب من الآن</translation>
    </message>
</context>
<context>
    <name>SettingsAbout</name>
    <message>
        <source>Velvetnook</source>
        <translation>Velvetnook</translation>
    </message>
    <message>
        <source>A quiet place at the top of your screen</source>
        <translation>مكان هادئ في أعلى شاشتك</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>الرخصة</translation>
    </message>
    <message>
        <source>© 2026 the Velvetnook developers</source>
        <translation>© 2026 مطوّرو Velvetnook</translation>
    </message>
    <message>
        <source>MIT</source>
        <translation>MIT</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>الخصوصية</translation>
    </message>
    <message>
        <source>What this desktop offers</source>
        <translation>ما يتيحه سطح المكتب هذا</translation>
    </message>
    <message>
        <source>The same list that “velvetnook --capabilities” prints.</source>
        <translation>القائمة نفسها التي يطبعها الأمر «velvetnook --capabilities».</translation>
    </message>
    <message>
        <source>Counts and notes stay on this computer. Only what you switch on asks the network.</source>
        <translation>تبقى الأعداد والملاحظات على هذا الحاسوب. ولا يتصل بالشبكة إلا ما تشغّله.</translation>
    </message>
</context>
<context>
    <name>SettingsAppearance</name>
    <message>
        <source>Theme</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>The notch strip is always black, like the edge it hangs from.</source>
        <translation>الشريط العلوي أسود دائمًا، كالحافة التي يتدلّى منها.</translation>
    </message>
    <message>
        <source>Accent</source>
        <translation>لون التمييز</translation>
    </message>
    <message>
        <source>One colour, used only for what is alive or chosen.</source>
        <translation>لون واحد، لما هو جارٍ أو مختار فقط.</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>السطح</translation>
    </message>
    <message>
        <source>Frosted is slightly see-through; Solid is not.</source>
        <translation>الزجاجي شفّاف قليلًا، والمصمت لا.</translation>
    </message>
    <message>
        <source>Reduce motion</source>
        <translation>تقليل الحركة</translation>
    </message>
    <message>
        <source>Follows the system; switch on to be sure.</source>
        <translation>يتبع النظام؛ شغّله للتأكّد.</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>القراءة</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>حجم النص</translation>
    </message>
    <message>
        <source>For phrases and Names</source>
        <translation>للأذكار والأسماء الحسنى</translation>
    </message>
    <message>
        <source>Transliteration</source>
        <translation>الكتابة اللاتينية</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>الترجمة</translation>
    </message>
</context>
<context>
    <name>SettingsClipboard</name>
    <message>
        <source>Keep what I copy</source>
        <translation>حفظ ما أنسخه</translation>
    </message>
    <message>
        <source>Sealed with a key from your keyring, on this computer only.</source>
        <translation>مختومًا بمفتاح من حافظة مفاتيحك، على هذا الحاسوب وحده.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>What is copied meanwhile is not kept.</source>
        <translation>ما يُنسخ في أثناء ذلك لا يُحفظ.</translation>
    </message>
    <message>
        <source>Enter pastes</source>
        <translation>مفتاح Enter يلصق</translation>
    </message>
    <message>
        <source>Into the window that had the keyboard, where the desktop allows it.</source>
        <translation>في النافذة التي كانت لها لوحة المفاتيح، حيث يسمح سطح المكتب.</translation>
    </message>
    <message>
        <source>How much is kept</source>
        <translation>مقدار ما يُحفظ</translation>
    </message>
    <message>
        <source>Favourites stay whatever the limits are.</source>
        <translation>تبقى المفضّلة أيًّا كانت الحدود.</translation>
    </message>
    <message>
        <source>For</source>
        <translation>مدة الحفظ</translation>
    </message>
    <message>
        <source>At most, items</source>
        <translation>أقصى عدد من العناصر</translation>
    </message>
    <message>
        <source>Images and files, at most</source>
        <translation>أقصى حجم للصور والملفات</translation>
    </message>
    <message>
        <source>Remove the history</source>
        <translation>حذف السجل</translation>
    </message>
    <message>
        <source>All but the favourites.</source>
        <translation>الكل عدا المفضّلة.</translation>
    </message>
    <message>
        <source>Remove…</source>
        <translation>حذف…</translation>
    </message>
    <message>
        <source>Never from these applications</source>
        <translation>لا شيء من هذه التطبيقات</translation>
    </message>
    <message>
        <source>What password managers mark as such is always left out.</source>
        <translation>ما تعلّمه برامج كلمات المرور سرًّا يُترك دائمًا.</translation>
    </message>
    <message>
        <source>Add an application</source>
        <translation>إضافة تطبيق</translation>
    </message>
    <message>
        <source>By the name that its windows go by, such as KeePassXC.</source>
        <translation>بالاسم الذي تُعرف به نوافذه، مثل KeePassXC.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>العاملة الآن…</translation>
    </message>
    <message>
        <source>None that is not here already</source>
        <translation>لا شيء غير ما هو هنا</translation>
    </message>
    <message>
        <source>Take out %1</source>
        <translation>إخراج %1</translation>
    </message>
    <message>
        <source>Remove all but the favourites?</source>
        <translation>حذف الكل عدا المفضّلة؟</translation>
    </message>
    <message>
        <source>What was copied goes for good. It cannot be brought back.</source>
        <translation>يُحذف ما نُسخ نهائيًا ولا يمكن استرجاعه.</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>حذف الكل</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>إبقاء</translation>
    </message>
</context>
<context>
    <name>SettingsData</name>
    <message>
        <source>Backup</source>
        <translation>النسخ الاحتياطي</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>التصدير</translation>
    </message>
    <message>
        <source>Counts, notes, timers and settings in one file. The clipboard stays here.</source>
        <translation>العدّات والملاحظات والمؤقّتات والإعدادات في ملف واحد. الحافظة تبقى هنا.</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>تصدير…</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>الاستيراد</translation>
    </message>
    <message>
        <source>Puts a backup in the place of what is here.</source>
        <translation>يضع نسخة احتياطية مكان ما هنا.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>استيراد…</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>مجلد البيانات</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Forgetting</source>
        <translation>النسيان</translation>
    </message>
    <message>
        <source>Clear the history</source>
        <translation>مسح السجل</translation>
    </message>
    <message>
        <source>Finished sessions, and what was copied, completed and used.</source>
        <translation>الجلسات المنتهية، وما نُسخ وأُكمل واستُعمل.</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>مسح…</translation>
    </message>
    <message>
        <source>Reset everything</source>
        <translation>تصفير كل شيء</translation>
    </message>
    <message>
        <source>Counts, notes and workspaces. Settings and tools stay as they are.</source>
        <translation>العدّات والملاحظات ومساحات العمل. الإعدادات والأدوات تبقى كما هي.</translation>
    </message>
    <message>
        <source>Reset…</source>
        <translation>تصفير…</translation>
    </message>
</context>
<context>
    <name>SettingsDock</name>
    <message>
        <source>Dock</source>
        <translation>الرصيف</translation>
    </message>
    <message>
        <source>Applications, files, links and tools at an edge of the screen, in workspaces.</source>
        <translation>تطبيقات وملفات وروابط وأدوات عند حافة الشاشة، في مساحات عمل.</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>المكان</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>الحافة</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>عائم</translation>
    </message>
    <message>
        <source>A little away from the edge, round all over.</source>
        <translation>بعيد قليلًا عن الحافة، مستدير من كل جهة.</translation>
    </message>
    <message>
        <source>At rest</source>
        <translation>عند السكون</translation>
    </message>
    <message>
        <source>The pointer brings it out where it touches the edge.</source>
        <translation>يخرجه المؤشر حيث يمس الحافة.</translation>
    </message>
    <message>
        <source>It lies above the windows.</source>
        <translation>يبقى فوق النوافذ.</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>الفتح</translation>
    </message>
    <message>
        <source>By hovering</source>
        <translation>بمرور المؤشر</translation>
    </message>
    <message>
        <source>After the delay of the notch. Otherwise a click opens a workspace.</source>
        <translation>بعد مهلة الشريط العلوي. وإلا فنقرة تفتح مساحة العمل.</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>اللسان</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>اللوحة</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>السطح</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>التكبير</translation>
    </message>
    <message>
        <source>What is under the pointer grows a little.</source>
        <translation>يكبر ما تحت المؤشر قليلًا.</translation>
    </message>
</context>
<context>
    <name>SettingsGeneral</name>
    <message>
        <source>Open at login</source>
        <translation>الفتح عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Velvetnook waits in the strip when your session begins.</source>
        <translation>ينتظر Velvetnook في الشريط عند بدء جلستك.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>الأرقام</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>الساعة</translation>
    </message>
    <message>
        <source>Counting</source>
        <translation>العدّ</translation>
    </message>
    <message>
        <source>Keep a history</source>
        <translation>الاحتفاظ بسجل</translation>
    </message>
    <message>
        <source>Finished sessions, on this computer only.</source>
        <translation>الجلسات المنتهية، على هذا الحاسوب فقط.</translation>
    </message>
    <message>
        <source>Sound at the target</source>
        <translation>صوت عند الهدف</translation>
    </message>
    <message>
        <source>One soft tone when a count is complete.</source>
        <translation>نغمة خافتة عند اكتمال العدّ.</translation>
    </message>
</context>
<context>
    <name>SettingsNavigation</name>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>البحث في الإعدادات</translation>
    </message>
    <message>
        <source>No setting goes by these words</source>
        <translation>لا إعداد بهذه الكلمات</translation>
    </message>
</context>
<context>
    <name>SettingsNotch</name>
    <message>
        <source>Phrase in the strip</source>
        <translation>الذِّكر في الشريط</translation>
    </message>
    <message>
        <source>The strip shows what you pinned while nothing else is due.</source>
        <translation>يعرض الشريط ما ثبّتّه ما لم يحن شيء آخر.</translation>
    </message>
    <message>
        <source>What it rests on</source>
        <translation>ما يستقرّ عليه</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>طريقة العرض</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>الفتح</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>التأخير</translation>
    </message>
    <message>
        <source>How long the pointer rests before the panel opens.</source>
        <translation>مدة بقاء المؤشّر قبل أن تُفتح اللوحة.</translation>
    </message>
    <message>
        <source>Hidden at rest</source>
        <translation>مخفي عند السكون</translation>
    </message>
    <message>
        <source>Nothing is drawn until the pointer touches the screen’s edge.</source>
        <translation>لا يُرسم شيء حتى يلمس المؤشّر حافة الشاشة.</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>الشاشة</translation>
    </message>
    <message>
        <source>A new favourite every</source>
        <translation>ذِكر مفضّل جديد كل</translation>
    </message>
    <message>
        <source>1 to 1440 minutes</source>
        <translation>من ١ إلى ١٤٤٠ دقيقة</translation>
    </message>
    <message>
        <source>Minutes between favourites</source>
        <translation>الدقائق بين المفضّلات</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>دقيقة</translation>
    </message>
    <message>
        <source>Volume and brightness</source>
        <translation>الصوت والسطوع</translation>
    </message>
    <message>
        <source>Show the level in the strip</source>
        <translation>إظهار المستوى في الشريط</translation>
    </message>
    <message>
        <source>For a moment when a key changes it. Turn off the one of your desktop, if it shows its own.</source>
        <translation>للحظة عندما يغيّره مفتاح. أوقف ما يظهره سطح المكتب إن كان له مثله.</translation>
    </message>
</context>
<context>
    <name>SettingsPrayer</name>
    <message>
        <source>Calculation</source>
        <translation>الحساب</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>طريقة الحساب</translation>
    </message>
    <message>
        <source>Asr</source>
        <translation>العصر</translation>
    </message>
    <message>
        <source>The school whose shadow length begins it.</source>
        <translation>المذهب الذي يبدأ بطول الظل عنده.</translation>
    </message>
    <message>
        <source>High latitude</source>
        <translation>خطوط العرض العالية</translation>
    </message>
    <message>
        <source>How much of a short night Fajr and Isha may take.</source>
        <translation>كم يأخذ الفجر والعشاء من ليلة قصيرة.</translation>
    </message>
    <message>
        <source>Adjustments</source>
        <translation>التعديلات</translation>
    </message>
    <message>
        <source>Minutes added to a time, to agree with your mosque.</source>
        <translation>دقائق تُضاف إلى الوقت ليوافق مسجدك.</translation>
    </message>
    <message>
        <source>Islamic date</source>
        <translation>التاريخ الهجري</translation>
    </message>
    <message>
        <source>Today: %1</source>
        <translation>اليوم: %1</translation>
    </message>
    <message>
        <source>Telling you</source>
        <translation>التنبيه</translation>
    </message>
    <message>
        <source>Notification at each prayer</source>
        <translation>إشعار عند كل صلاة</translation>
    </message>
    <message>
        <source>Sound with the notification</source>
        <translation>صوت مع الإشعار</translation>
    </message>
    <message>
        <source>In the strip in the last hour</source>
        <translation>في الشريط في الساعة الأخيرة</translation>
    </message>
    <message>
        <source>The next prayer stands in the strip when it is near.</source>
        <translation>تظهر الصلاة القادمة في الشريط عند اقترابها.</translation>
    </message>
</context>
<context>
    <name>SettingsReminders</name>
    <message>
        <source>Gentle reminders</source>
        <translation>تذكيرات لطيفة</translation>
    </message>
    <message>
        <source>A notification with the pinned phrase, inside the hours you choose.</source>
        <translation>إشعار بالذِّكر المثبّت، في الساعات التي تختارها.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>كل</translation>
    </message>
    <message>
        <source>1 to 1440 minutes</source>
        <translation>من ١ إلى ١٤٤٠ دقيقة</translation>
    </message>
    <message>
        <source>Minutes between reminders</source>
        <translation>الدقائق بين التذكيرات</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>دقيقة</translation>
    </message>
    <message>
        <source>Active hours</source>
        <translation>ساعات النشاط</translation>
    </message>
    <message>
        <source>Across midnight is fine: the evening’s day decides.</source>
        <translation>يجوز أن تعبر منتصف الليل: العبرة بيوم المساء.</translation>
    </message>
    <message>
        <source>Active from</source>
        <translation>نشط من</translation>
    </message>
    <message>
        <source>to</source>
        <translation>إلى</translation>
    </message>
    <message>
        <source>Active until</source>
        <translation>نشط حتى</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>الأيام</translation>
    </message>
    <message>
        <source>When the phrase is already on screen</source>
        <translation>حين يكون الذِّكر على الشاشة</translation>
    </message>
    <message>
        <source>Stay quiet</source>
        <translation>ابقَ هادئًا</translation>
    </message>
    <message>
        <source>Emphasise it</source>
        <translation>أبرِزه</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>الصوت</translation>
    </message>
</context>
<context>
    <name>SettingsShortcuts</name>
    <message>
        <source>Open the first tools</source>
        <translation>فتح الأدوات الأولى</translation>
    </message>
    <message>
        <source>Next and previous tool</source>
        <translation>الأداة التالية والسابقة</translation>
    </message>
    <message>
        <source>Search for anything</source>
        <translation>ابحث عن أي شيء</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Header, body, footer</source>
        <translation>الترويسة والمتن والتذييل</translation>
    </message>
    <message>
        <source>Back, then close</source>
        <translation>رجوع ثم إغلاق</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>عدّ</translation>
    </message>
    <message>
        <source>Take one back</source>
        <translation>تراجع عن واحدة</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>الهدف</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>البدء من جديد</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>In the panel</source>
        <translation>في اللوحة</translation>
    </message>
    <message>
        <source>In the counter</source>
        <translation>في العدّاد</translation>
    </message>
    <message>
        <source>Single letters work while no text is being typed.</source>
        <translation>تعمل الحروف المفردة ما لم يكن نص يُكتب.</translation>
    </message>
</context>
<context>
    <name>SettingsSurface</name>
    <message>
        <source>Velvetnook Settings</source>
        <translation>إعدادات Velvetnook</translation>
    </message>
</context>
<context>
    <name>SettingsTitleBar</name>
    <message>
        <source>Velvetnook Settings</source>
        <translation>إعدادات Velvetnook</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
</context>
<context>
    <name>SettingsTools</name>
    <message>
        <source>Drag a tool by its handle, or press Alt and an arrow on it.</source>
        <translation>اسحب الأداة من مقبضها، أو اضغط Alt مع سهم عليها.</translation>
    </message>
</context>
<context>
    <name>ShelfCard</name>
    <message>
        <source>Name on the shelf</source>
        <translation>الاسم على الرف</translation>
    </message>
</context>
<context>
    <name>ShelfDropZone</name>
    <message>
        <source>Let go to keep it close</source>
        <translation>أفلته ليبقى قريبًا</translation>
    </message>
    <message>
        <source>Drop files here to keep them close</source>
        <translation>أفلت الملفات هنا لتبقى قريبة</translation>
    </message>
    <message>
        <source>Pictures, links and texts too. Files stay where they are.</source>
        <translation>والصور والروابط والنصوص أيضًا. تبقى الملفات في أماكنها.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>take off shelf</source>
        <translation>رفع من الرف</translation>
    </message>
    <message>
        <source>There is nothing to paste</source>
        <translation>لا شيء للصقه</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>الرف</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Show in its folder</source>
        <translation>إظهار في المجلد</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>إعادة تسمية</translation>
    </message>
    <message>
        <source>Take off shelf</source>
        <translation>رفع من الرف</translation>
    </message>
    <message>
        <source>Clear the shelf…</source>
        <translation>إفراغ الرف…</translation>
    </message>
    <message>
        <source>Take everything off the shelf?</source>
        <translation>أتريد رفع كل شيء من الرف؟</translation>
    </message>
    <message>
        <source>Your files stay where they are.</source>
        <translation>تبقى ملفاتك في أماكنها.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>إفراغ</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>إبقاء</translation>
    </message>
</context>
<context>
    <name>ShortcutGroup</name>
    <message>
        <source>From anywhere</source>
        <translation>من أي مكان</translation>
    </message>
    <message>
        <source>A key for a tool</source>
        <translation>مفتاح لأداة</translation>
    </message>
    <message>
        <source>It opens the panel with that tool.</source>
        <translation>يفتح اللوحة على تلك الأداة.</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>الأداة</translation>
    </message>
    <message>
        <source>Choose a tool</source>
        <translation>اختر أداة</translation>
    </message>
</context>
<context>
    <name>ShortcutRecorder</name>
    <message>
        <source>Press the keys…</source>
        <translation>اضغط المفاتيح…</translation>
    </message>
</context>
<context>
    <name>ShortcutRow</name>
    <message>
        <source>Press the keys together. Esc leaves it as it is.</source>
        <translation>اضغط المفاتيح معًا. ويبقيه Esc كما هو.</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>تغيير…</translation>
    </message>
    <message>
        <source>Set…</source>
        <translation>تعيين…</translation>
    </message>
    <message>
        <source>Change the key of %1</source>
        <translation>تغيير مفتاح %1</translation>
    </message>
    <message>
        <source>Take the key of %1 away</source>
        <translation>إزالة مفتاح %1</translation>
    </message>
</context>
<context>
    <name>Sky</name>
    <message>
        <source>Clear sky</source>
        <translation>سماء صافية</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>صحو</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <translation>غائم جزئيًا</translation>
    </message>
    <message>
        <source>Cloudy</source>
        <translation>غائم</translation>
    </message>
    <message>
        <source>Fog</source>
        <translation>ضباب</translation>
    </message>
    <message>
        <source>Light rain</source>
        <translation>مطر خفيف</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>مطر</translation>
    </message>
    <message>
        <source>Heavy rain</source>
        <translation>مطر غزير</translation>
    </message>
    <message>
        <source>Light rain showers</source>
        <translation>زخّات مطر خفيفة</translation>
    </message>
    <message>
        <source>Rain showers</source>
        <translation>زخّات مطر</translation>
    </message>
    <message>
        <source>Heavy rain showers</source>
        <translation>زخّات مطر غزيرة</translation>
    </message>
    <message>
        <source>Light rain and thunder</source>
        <translation>مطر خفيف ورعد</translation>
    </message>
    <message>
        <source>Rain and thunder</source>
        <translation>مطر ورعد</translation>
    </message>
    <message>
        <source>Heavy rain and thunder</source>
        <translation>مطر غزير ورعد</translation>
    </message>
    <message>
        <source>Light rain showers and thunder</source>
        <translation>زخّات مطر خفيفة ورعد</translation>
    </message>
    <message>
        <source>Rain showers and thunder</source>
        <translation>زخّات مطر ورعد</translation>
    </message>
    <message>
        <source>Heavy rain showers and thunder</source>
        <translation>زخّات مطر غزيرة ورعد</translation>
    </message>
    <message>
        <source>Light sleet</source>
        <translation>مطر ثلجي خفيف</translation>
    </message>
    <message>
        <source>Sleet</source>
        <translation>مطر ثلجي</translation>
    </message>
    <message>
        <source>Heavy sleet</source>
        <translation>مطر ثلجي غزير</translation>
    </message>
    <message>
        <source>Light sleet showers</source>
        <translation>زخّات مطر ثلجي خفيفة</translation>
    </message>
    <message>
        <source>Sleet showers</source>
        <translation>زخّات مطر ثلجي</translation>
    </message>
    <message>
        <source>Heavy sleet showers</source>
        <translation>زخّات مطر ثلجي غزيرة</translation>
    </message>
    <message>
        <source>Light sleet and thunder</source>
        <translation>مطر ثلجي خفيف ورعد</translation>
    </message>
    <message>
        <source>Sleet and thunder</source>
        <translation>مطر ثلجي ورعد</translation>
    </message>
    <message>
        <source>Heavy sleet and thunder</source>
        <translation>مطر ثلجي غزير ورعد</translation>
    </message>
    <message>
        <source>Light sleet showers and thunder</source>
        <translation>زخّات مطر ثلجي خفيفة ورعد</translation>
    </message>
    <message>
        <source>Sleet showers and thunder</source>
        <translation>زخّات مطر ثلجي ورعد</translation>
    </message>
    <message>
        <source>Heavy sleet showers and thunder</source>
        <translation>زخّات مطر ثلجي غزيرة ورعد</translation>
    </message>
    <message>
        <source>Light snow</source>
        <translation>ثلج خفيف</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>ثلج</translation>
    </message>
    <message>
        <source>Heavy snow</source>
        <translation>ثلج غزير</translation>
    </message>
    <message>
        <source>Light snow showers</source>
        <translation>زخّات ثلج خفيفة</translation>
    </message>
    <message>
        <source>Snow showers</source>
        <translation>زخّات ثلج</translation>
    </message>
    <message>
        <source>Heavy snow showers</source>
        <translation>زخّات ثلج غزيرة</translation>
    </message>
    <message>
        <source>Light snow and thunder</source>
        <translation>ثلج خفيف ورعد</translation>
    </message>
    <message>
        <source>Snow and thunder</source>
        <translation>ثلج ورعد</translation>
    </message>
    <message>
        <source>Heavy snow and thunder</source>
        <translation>ثلج غزير ورعد</translation>
    </message>
    <message>
        <source>Light snow showers and thunder</source>
        <translation>زخّات ثلج خفيفة ورعد</translation>
    </message>
    <message>
        <source>Snow showers and thunder</source>
        <translation>زخّات ثلج ورعد</translation>
    </message>
    <message>
        <source>Heavy snow showers and thunder</source>
        <translation>زخّات ثلج غزيرة ورعد</translation>
    </message>
    <message>
        <source>Unknown sky</source>
        <translation>حالة سماء غير معروفة</translation>
    </message>
</context>
<context>
    <name>SoundCard</name>
    <message>
        <source>Volume of %1</source>
        <translation>مستوى %1</translation>
    </message>
</context>
<context>
    <name>Sounds</name>
    <message>
        <source>Rain</source>
        <translation>مطر</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>رياح</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>جدول ماء</translation>
    </message>
    <message>
        <source>Night garden</source>
        <translation>حديقة ليلًا</translation>
    </message>
    <message>
        <source>Far thunder</source>
        <translation>رعد بعيد</translation>
    </message>
    <message>
        <source>Brown noise</source>
        <translation>ضجيج بنّي</translation>
    </message>
    <message>
        <source>Pink noise</source>
        <translation>ضجيج وردي</translation>
    </message>
    <message>
        <source>White noise</source>
        <translation>ضجيج أبيض</translation>
    </message>
</context>
<context>
    <name>SoundsView</name>
    <message>
        <source>Space</source>
        <comment>the key</comment>
        <translation>المسافة</translation>
    </message>
    <message>
        <source>pause all</source>
        <translation>إيقاف الكل</translation>
    </message>
    <message>
        <source>play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>volume</source>
        <translation>مستوى الصوت</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>الأصوات</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>إيقاف الكل مؤقتًا</translation>
    </message>
    <message>
        <source>Play the mix</source>
        <translation>تشغيل المزيج</translation>
    </message>
    <message>
        <source>Volume of all</source>
        <translation>مستوى الكل</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <translation>جارٍ العمل</translation>
    </message>
</context>
<context>
    <name>StepDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>الخطوة %1 من %2</translation>
    </message>
</context>
<context>
    <name>Stepper</name>
    <message>
        <source>Less</source>
        <translation>أقل</translation>
    </message>
    <message>
        <source>More</source>
        <translation>أكثر</translation>
    </message>
</context>
<context>
    <name>Strip</name>
    <message>
        <source>now</source>
        <comment>the time of a prayer has come</comment>
        <translation>الآن</translation>
    </message>
    <message>
        <source>in %1</source>
        <comment>42 min</comment>
        <translation>بعد %1</translation>
    </message>
    <message>
        <source>%1 is waiting for you</source>
        <comment>Claude Code</comment>
        <translation>ينتظرك %1</translation>
    </message>
    <message>
        <source>(no title)</source>
        <translation>(بلا عنوان)</translation>
    </message>
    <message>
        <source>now</source>
        <comment>an event begins</comment>
        <translation>الآن</translation>
    </message>
</context>
<context>
    <name>StripSurface</name>
    <message>
        <source>Velvetnook</source>
        <translation>Velvetnook</translation>
    </message>
</context>
<context>
    <name>TimerFields</name>
    <message>
        <source>Length</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>Time left</source>
        <translation>الوقت المتبقّي</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
</context>
<context>
    <name>TimerFigure</name>
    <message>
        <source>Another timer</source>
        <translation>مؤقّت آخر</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>تركيز</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>استراحة</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>مؤقّت</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>ساعة إيقاف</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>ماء</translation>
    </message>
    <message>
        <source>−5 min</source>
        <translation>−٥ د</translation>
    </message>
    <message>
        <source>+5 min</source>
        <translation>+٥ د</translation>
    </message>
</context>
<context>
    <name>TimerLine</name>
    <message>
        <source>Set…</source>
        <translation>تعيين…</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>تصفير %1</translation>
    </message>
    <message>
        <source>Pause %1</source>
        <translation>إيقاف %1 مؤقتًا</translation>
    </message>
    <message>
        <source>Start %1</source>
        <translation>بدء %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>تصفير</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Del</source>
        <comment>the key</comment>
        <translation>Del</translation>
    </message>
</context>
<context>
    <name>TimerList</name>
    <message>
        <source>Timers</source>
        <translation>المؤقّتات</translation>
    </message>
</context>
<context>
    <name>TimersView</name>
    <message>
        <source>Timers</source>
        <translation>المؤقّتات</translation>
    </message>
    <message>
        <source>Focus until prayer…</source>
        <translation>تركيز حتى الصلاة…</translation>
    </message>
    <message>
        <source>Space</source>
        <comment>the key</comment>
        <translation>Space</translation>
    </message>
    <message>
        <source>start or pause</source>
        <translation>بدء أو إيقاف</translation>
    </message>
    <message>
        <source>add 5 min</source>
        <translation>إضافة ٥ د</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>تصفير</translation>
    </message>
</context>
<context>
    <name>ToolRow</name>
    <message>
        <source>Move %1</source>
        <translation>نقل %1</translation>
    </message>
    <message>
        <source>Alt ↑ ↓</source>
        <translation>Alt ↑ ↓</translation>
    </message>
    <message>
        <source>Take %1 out of the header</source>
        <translation>إخراج %1 من الترويسة</translation>
    </message>
    <message>
        <source>Put %1 into the header</source>
        <translation>وضع %1 في الترويسة</translation>
    </message>
</context>
<context>
    <name>ToolSummaries</name>
    <message>
        <source>How long you have been at the screen today, known only to this computer.</source>
        <translation>كم مكثت أمام الشاشة اليوم، ولا يعلم بذلك إلا هذا الحاسوب.</translation>
    </message>
    <message>
        <source>What is left of your coding assistants’ limits, and which one waits for you.</source>
        <translation>ما بقي من حدود مساعدي البرمجة، وأيّهم ينتظرك.</translation>
    </message>
    <message>
        <source>What matters right now, on one calm page.</source>
        <translation>ما يهمّ الآن، في صفحة هادئة واحدة.</translation>
    </message>
    <message>
        <source>Count a phrase bead by bead, with a target, undo and a quiet history.</source>
        <translation>عدّ الأذكار حبّةً حبّة، مع هدف وتراجع وسجل هادئ.</translation>
    </message>
    <message>
        <source>Today’s prayer times and the Qibla, worked out on this computer.</source>
        <translation>مواقيت صلاة اليوم والقبلة، تُحسب على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>The Names in Arabic with their meaning, and one for each day.</source>
        <translation>الأسماء الحسنى بمعانيها، واسم لكل يوم.</translation>
    </message>
    <message>
        <source>Your count on a full ring of beads, with nothing else in view.</source>
        <translation>عدّك على حلقة كاملة من الحبّات، ولا شيء سواها.</translation>
    </message>
    <message>
        <source>One quiet invitation each Friday to send blessings upon the Prophet.</source>
        <translation>دعوة هادئة كل جمعة إلى الصلاة على النبي.</translation>
    </message>
    <message>
        <source>Focus, countdown, stopwatch and a gentle nudge to drink water.</source>
        <translation>تركيز وعدّ تنازلي وساعة إيقاف وتذكير لطيف بشرب الماء.</translation>
    </message>
    <message>
        <source>One sheet for whatever is on your mind, saved as you type.</source>
        <translation>ورقة واحدة لكل ما يخطر ببالك، تُحفظ وأنت تكتب.</translation>
    </message>
    <message>
        <source>Short notes you can find again by any word in them.</source>
        <translation>ملاحظات قصيرة تجدها بأي كلمة فيها.</translation>
    </message>
    <message>
        <source>What you copied, encrypted on this computer, with the favourites kept.</source>
        <translation>ما نسخته، مشفَّرًا على هذا الحاسوب، مع الاحتفاظ بالمفضّلة.</translation>
    </message>
    <message>
        <source>A place to set files down for a moment and pick them up elsewhere.</source>
        <translation>مكان تضع فيه الملفات لحظةً وتأخذها في مكان آخر.</translation>
    </message>
    <message>
        <source>The files and folders you come back to, one step away.</source>
        <translation>الملفات والمجلدات التي تعود إليها، على بُعد خطوة.</translation>
    </message>
    <message>
        <source>Your own dua bookmarks, each a link to a source you chose.</source>
        <translation>إشارات أدعيتك، كل منها رابط إلى مصدر اخترته.</translation>
    </message>
    <message>
        <source>Find an emoji by its name and copy it with one key.</source>
        <translation>جد رمزًا تعبيريًّا باسمه وانسخه بمفتاح واحد.</translation>
    </message>
    <message>
        <source>Convert length, mass, temperature and more as you type.</source>
        <translation>تحويل الأطوال والكتل ودرجات الحرارة وغيرها وأنت تكتب.</translation>
    </message>
    <message>
        <source>The month to look at, with each day’s events and its Islamic date.</source>
        <translation>الشهر أمامك، بأحداث كل يوم وتاريخه الهجري.</translation>
    </message>
    <message>
        <source>Temperature, rain and wind for your place, from MET Norway.</source>
        <translation>الحرارة والمطر والريح في مكانك، من MET Norway.</translation>
    </message>
    <message>
        <source>See what is playing and steer it, in a player or a browser tab.</source>
        <translation>اعرف ما يُعزف وتحكّم فيه، في مشغّل أو في علامة تبويب.</translation>
    </message>
    <message>
        <source>Rain, wind and other soft sounds to mix, with a time to fall silent.</source>
        <translation>مطر وريح وأصوات هادئة أخرى تمزجها، ووقت تصمت عنده.</translation>
    </message>
    <message>
        <source>Processor, memory, disk and network, and which applications use them.</source>
        <translation>المعالج والذاكرة والقرص والشبكة، والتطبيقات التي تستخدمها.</translation>
    </message>
    <message>
        <source>Payments, refunds, fees and payouts from your own Stripe account.</source>
        <translation>المدفوعات والمبالغ المستردة والرسوم والتحويلات من حسابك في Stripe.</translation>
    </message>
    <message>
        <source>Visitors, top pages and referrers of your website, from DataFast.</source>
        <translation>زوّار موقعك وأهم صفحاته ومصادره، من DataFast.</translation>
    </message>
    <message>
        <source>How Velvetnook looks, when it speaks up and which tools stay close.</source>
        <translation>كيف يبدو Velvetnook، ومتى ينبّهك، وأي الأدوات تبقى قريبة.</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Home</source>
        <translation>الرئيسية</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>العدّاد</translation>
    </message>
    <message>
        <source>Prayer</source>
        <translation>الصلاة</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>الأسماء الحسنى</translation>
    </message>
    <message>
        <source>Tasbih</source>
        <translation>التسبيح</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>الجمعة</translation>
    </message>
    <message>
        <source>Timers</source>
        <translation>المؤقّتات</translation>
    </message>
    <message>
        <source>Scratchpad</source>
        <translation>المسوّدة</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>الملاحظات</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>الحافظة</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>الرفّ</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>الإشارات المرجعية</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>الرموز التعبيرية</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>الوحدات</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>التقويم</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>الطقس</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>الموسيقى</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>الأصوات</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>المراقب</translation>
    </message>
    <message>
        <source>Screen time</source>
        <translation>وقت الشاشة</translation>
    </message>
    <message>
        <source>Assistants</source>
        <translation>المساعدون</translation>
    </message>
    <message>
        <source>Revenue</source>
        <translation>الإيرادات</translation>
    </message>
    <message>
        <source>Analytics</source>
        <translation>التحليلات</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
</context>
<context>
    <name>TryGroup</name>
    <message>
        <source>Try it</source>
        <translation>تجربة</translation>
    </message>
    <message>
        <source>Test notification</source>
        <translation>إشعار تجريبي</translation>
    </message>
    <message>
        <source>Send a preview</source>
        <translation>إرسال معاينة</translation>
    </message>
    <message>
        <source>Pause all reminders</source>
        <translation>إيقاف كل التذكيرات مؤقتًا</translation>
    </message>
    <message>
        <source>Until tomorrow morning, one hour, or a time you set.</source>
        <translation>حتى صباح الغد، أو ساعة، أو وقت تحدّده.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>Pause…</source>
        <translation>إيقاف مؤقت…</translation>
    </message>
    <message>
        <source>For an hour</source>
        <translation>لساعة</translation>
    </message>
    <message>
        <source>Until tomorrow morning</source>
        <translation>حتى صباح الغد</translation>
    </message>
    <message>
        <source>Until a time…</source>
        <translation>حتى وقت…</translation>
    </message>
    <message>
        <source>Pause until</source>
        <translation>إيقاف حتى</translation>
    </message>
    <message>
        <source>The next time that the clock shows this, such as 16:30</source>
        <translation>حين تبلغ الساعة هذا الوقت، مثل 16:30</translation>
    </message>
</context>
<context>
    <name>UnitBox</name>
    <message>
        <source>No result</source>
        <translation>لا نتيجة</translation>
    </message>
</context>
<context>
    <name>UnitsView</name>
    <message>
        <source>Up to 12 significant digits</source>
        <translation>حتى ١٢ رقمًا معنويًا</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>next field</source>
        <translation>الحقل التالي</translation>
    </message>
    <message>
        <source>swap</source>
        <translation>تبديل</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>copy result</source>
        <translation>نسخ النتيجة</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <translation>نُسخ %1</translation>
    </message>
    <message>
        <source>From</source>
        <translation>من</translation>
    </message>
    <message>
        <source>Swap the units</source>
        <translation>تبديل الوحدتين</translation>
    </message>
    <message>
        <source>To</source>
        <translation>إلى</translation>
    </message>
</context>
<context>
    <name>UpdateGroup</name>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Look now</source>
        <translation>البحث الآن</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>البحث عن إصدار أحدث</translation>
    </message>
    <message>
        <source>Asks the maker’s server once a day. Nothing but the version of this program is told to it.</source>
        <translation>يُسأل خادم الصانع مرة في اليوم، ولا يُخبَر بغير إصدار هذا البرنامج.</translation>
    </message>
</context>
<context>
    <name>UpdateOffer</name>
    <message>
        <source>Velvetnook %1 is there</source>
        <translation>صدر Velvetnook %1</translation>
    </message>
    <message>
        <source>Copy its address</source>
        <translation>نسخ عنوانه</translation>
    </message>
    <message>
        <source>SHA-256 %1</source>
        <translation>SHA-256 %1</translation>
    </message>
</context>
<context>
    <name>Velvetnook</name>
    <message>
        <source>Session</source>
        <translation>الجلسة</translation>
    </message>
    <message>
        <source>Wayland without XWayland</source>
        <translation>Wayland بلا XWayland</translation>
    </message>
    <message>
        <source>There is no display.</source>
        <translation>لا توجد شاشة.</translation>
    </message>
    <message>
        <source>Install XWayland and log in again.</source>
        <translation>ثبّت XWayland ثم سجّل الدخول من جديد.</translation>
    </message>
    <message>
        <source>Log in to a desktop, or use kest in this terminal.</source>
        <translation>سجّل الدخول إلى سطح مكتب، أو استعمل kest في هذه الطرفية.</translation>
    </message>
    <message>
        <source>Wayland, reached through XWayland</source>
        <translation>Wayland، عبر XWayland</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>اختر جلسة X11 عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>X11</source>
        <translation>X11</translation>
    </message>
    <message>
        <source>Strip at the screen&apos;s edge</source>
        <translation>الشريط عند حافة الشاشة</translation>
    </message>
    <message>
        <source>Only an X server lets a program place its window.</source>
        <translation>خادم X وحده يتيح للبرنامج وضع نافذته.</translation>
    </message>
    <message>
        <source>Through XWayland other windows and full screens may cover it.</source>
        <translation>عبر XWayland قد تغطّيه نوافذ أخرى وملء الشاشة.</translation>
    </message>
    <message>
        <source>No window manager says when a window fills the screen: it stays over it.</source>
        <translation>لا مدير نوافذ يخبر بنافذة تملأ الشاشة: يبقى فوقها.</translation>
    </message>
    <message>
        <source>%1 does not say when a window fills the screen: it stays over it.</source>
        <translation>لا يخبر %1 بنافذة تملأ الشاشة: يبقى فوقها.</translation>
    </message>
    <message>
        <source>It stands above other windows and gives way to full screens.</source>
        <translation>يقف فوق النوافذ الأخرى ويُفسح لما يملأ الشاشة.</translation>
    </message>
    <message>
        <source>Shadows and soft edges</source>
        <translation>الظلال والحواف الناعمة</translation>
    </message>
    <message>
        <source>The screen is composited.</source>
        <translation>الشاشة مركّبة.</translation>
    </message>
    <message>
        <source>The screen is not composited: edges are hard, shadows are left out.</source>
        <translation>الشاشة غير مركّبة: الحواف حادّة والظلال متروكة.</translation>
    </message>
    <message>
        <source>Turn on compositing, or start a compositor such as picom.</source>
        <translation>شغّل التركيب، أو ابدأ مركّبًا مثل picom.</translation>
    </message>
    <message>
        <source>Key for the palette</source>
        <translation>مفتاح لوحة الأوامر</translation>
    </message>
    <message>
        <source>Works in every window.</source>
        <translation>يعمل في كل نافذة.</translation>
    </message>
    <message>
        <source>Not tried here: only the running application asks for it.</source>
        <translation>لم يُجرَّب هنا: لا يطلبه إلا التطبيق وهو يعمل.</translation>
    </message>
    <message>
        <source>In the desktop&apos;s keyboard settings, bind a key to: kest palette toggle</source>
        <translation>في إعدادات لوحة المفاتيح اربط مفتاحًا بالأمر: kest palette toggle</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>الإشعارات</translation>
    </message>
    <message>
        <source>Nothing in this session shows notifications.</source>
        <translation>لا شيء في هذه الجلسة يعرض الإشعارات.</translation>
    </message>
    <message>
        <source>There is no session bus.</source>
        <translation>لا يوجد ناقل للجلسة.</translation>
    </message>
    <message>
        <source>Start a notification service, such as the desktop&apos;s own or dunst.</source>
        <translation>شغّل خدمة إشعارات، كخدمة سطح المكتب أو dunst.</translation>
    </message>
    <message>
        <source>They are shown without buttons.</source>
        <translation>تُعرض بلا أزرار.</translation>
    </message>
    <message>
        <source>Shown by the desktop</source>
        <translation>يعرضها سطح المكتب</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>أيقونة الصينية</translation>
    </message>
    <message>
        <source>No panel of this session shows tray icons.</source>
        <translation>لا لوحة في هذه الجلسة تعرض أيقونات الصينية.</translation>
    </message>
    <message>
        <source>There is no tray in this session.</source>
        <translation>لا صينية في هذه الجلسة.</translation>
    </message>
    <message>
        <source>Turn on the AppIndicator extension of GNOME Shell (gnome-shell-extension-appindicator).</source>
        <translation>فعّل إضافة AppIndicator في GNOME Shell ‏(gnome-shell-extension-appindicator).</translation>
    </message>
    <message>
        <source>Add a tray to the desktop&apos;s panel. The strip does all of it too.</source>
        <translation>أضف صينية إلى لوحة سطح المكتب. والشريط يقوم بكل ذلك أيضًا.</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>حلقة المفاتيح</translation>
    </message>
    <message>
        <source>Secrets are kept in the desktop&apos;s keyring.</source>
        <translation>تُحفظ الأسرار في حلقة مفاتيح سطح المكتب.</translation>
    </message>
    <message>
        <source>There is no keyring (Secret Service) here.</source>
        <translation>لا حلقة مفاتيح (Secret Service) هنا.</translation>
    </message>
    <message>
        <source>Install gnome-keyring or KeePassXC and unlock it.</source>
        <translation>ثبّت gnome-keyring أو KeePassXC وافتح قفله.</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>الأصوات</translation>
    </message>
    <message>
        <source>Played through the session&apos;s sound server</source>
        <translation>يُشغَّل عبر خادم الصوت في الجلسة</translation>
    </message>
    <message>
        <source>There is no sound server in this session.</source>
        <translation>لا خادم صوت في هذه الجلسة.</translation>
    </message>
    <message>
        <source>Start PipeWire or PulseAudio.</source>
        <translation>شغّل PipeWire أو PulseAudio.</translation>
    </message>
    <message>
        <source>Dark and light of the desktop</source>
        <translation>داكن سطح المكتب وفاتحه</translation>
    </message>
    <message>
        <source>Followed as it changes</source>
        <translation>يُتبع كلما تغيّر</translation>
    </message>
    <message>
        <source>This desktop does not tell how it looks.</source>
        <translation>لا يخبر سطح المكتب هذا عن مظهره.</translation>
    </message>
    <message>
        <source>Choose dark or light in the settings, or install xdg-desktop-portal.</source>
        <translation>اختر الداكن أو الفاتح في الإعدادات، أو ثبّت xdg-desktop-portal.</translation>
    </message>
    <message>
        <source>Sleep and waking</source>
        <translation>النوم والاستيقاظ</translation>
    </message>
    <message>
        <source>Told by the system</source>
        <translation>يخبر به النظام</translation>
    </message>
    <message>
        <source>Seen by the clock alone; the screen&apos;s lock is not known.</source>
        <translation>يُعرف من الساعة وحدها؛ وقفل الشاشة غير معلوم.</translation>
    </message>
    <message>
        <source>full</source>
        <translation>كامل</translation>
    </message>
    <message>
        <source>degraded</source>
        <translation>منقوص</translation>
    </message>
    <message>
        <source>off</source>
        <translation>متوقف</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Count %1 (%2)</source>
        <translation>عُدَّ %1 (%2)</translation>
    </message>
    <message>
        <source>Count %1 (%2 of %3)</source>
        <translation>عُدَّ %1 (%2 من %3)</translation>
    </message>
    <message>
        <source>Choose a place for prayer times</source>
        <translation>اختر مكانًا لمواقيت الصلاة</translation>
    </message>
    <message>
        <source>No prayer times today</source>
        <translation>لا مواقيت اليوم</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 في %2</translation>
    </message>
    <message>
        <source>Open Velvetnook</source>
        <translation>فتح Velvetnook</translation>
    </message>
    <message>
        <source>Resume reminders</source>
        <translation>استئناف التذكيرات</translation>
    </message>
    <message>
        <source>Pause reminders for an hour</source>
        <translation>إيقاف التذكيرات ساعة</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
</context>
<context>
    <name>Velvetnook::App</name>
    <message>
        <source>%1 removed.</source>
        <translation>أُزيل %1.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>نُسخ</translation>
    </message>
    <message>
        <source>Removed from the history.</source>
        <translation>حُذف من السجل.</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <translation>نُسخ %1</translation>
    </message>
    <message>
        <source>%1 is counted no more.</source>
        <translation>لم يعد %1 يُحسب.</translation>
    </message>
    <message>
        <source>Show</source>
        <comment>the folder of a file</comment>
        <translation>عرض</translation>
    </message>
</context>
<context>
    <name>Velvetnook::AppearanceSettings</name>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Sage</source>
        <translation>مريمية</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>سماوي</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>رملي</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>وردي</translation>
    </message>
    <message>
        <source>Iris</source>
        <translation>سوسني</translation>
    </message>
    <message>
        <source>Frosted</source>
        <translation>زجاجي</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>مصمت</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>صغير</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>متوسط</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>كبير</translation>
    </message>
</context>
<context>
    <name>Velvetnook::AssistantsViewModel</name>
    <message>
        <source>weekly</source>
        <comment>span of a limit</comment>
        <translation>أسبوعي</translation>
    </message>
    <message>
        <source>monthly</source>
        <comment>span of a limit</comment>
        <translation>شهري</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s)</source>
        <comment>span of a limit</comment>
        <translation>
            <numerusform>%n يوم</numerusform>
            <numerusform>يوم واحد</numerusform>
            <numerusform>يومان</numerusform>
            <numerusform>%n أيام</numerusform>
            <numerusform>%n يومًا</numerusform>
            <numerusform>%n يوم</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 h window</source>
        <comment>span of a limit</comment>
        <translation>مدة %1 س</translation>
    </message>
    <message>
        <source>%1 bn</source>
        <comment>tokens</comment>
        <translation>%1 مليار</translation>
    </message>
    <message>
        <source>%1 M</source>
        <comment>tokens</comment>
        <translation>%1 مليون</translation>
    </message>
    <message>
        <source>%1 k</source>
        <comment>tokens</comment>
        <translation>%1 ألف</translation>
    </message>
    <message>
        <source>resets %1</source>
        <comment>15:40 or Mon</comment>
        <translation>يتجدد %1</translation>
    </message>
    <message>
        <source>%1, %2: %3 percent used. %4</source>
        <translation>%1، %2: استُعمل %3 بالمئة. %4</translation>
    </message>
    <message>
        <source>tokens · %1 in seven days</source>
        <comment>1.2 M</comment>
        <translation>رموز · %1 في سبعة أيام</translation>
    </message>
    <message>
        <source>5 h window</source>
        <translation>مدة ٥ س</translation>
    </message>
    <message>
        <source>seven days</source>
        <translation>سبعة أيام</translation>
    </message>
    <message>
        <source>until %1</source>
        <comment>15:40</comment>
        <translation>حتى %1</translation>
    </message>
    <message>
        <source>tokens · none in five hours</source>
        <translation>رموز · لا شيء في خمس ساعات</translation>
    </message>
    <message>
        <source>%1, %2: %3 tokens. %4</source>
        <translation>%1، %2: %3 من الرموز. %4</translation>
    </message>
    <message>
        <source>working</source>
        <translation>يعمل</translation>
    </message>
    <message>
        <source>working · %1 ago</source>
        <comment>4 min</comment>
        <translation>يعمل · قبل %1</translation>
    </message>
    <message>
        <source>waiting for your answer</source>
        <translation>ينتظر جوابك</translation>
    </message>
    <message>
        <source>%1 · waiting for your answer</source>
        <comment>a folder</comment>
        <translation>‏%1 · ينتظر جوابك</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>No activity</source>
        <translation>لا نشاط</translation>
    </message>
    <message>
        <source>idle since %1</source>
        <comment>11:20 or Mon</comment>
        <translation>ساكن منذ %1</translation>
    </message>
    <message>
        <source>Reading the logs…</source>
        <translation>تجري قراءة السجلات…</translation>
    </message>
    <message numerus="yes">
        <source>%n log(s) could not be read</source>
        <translation>
            <numerusform>لم يتعذر سجل</numerusform>
            <numerusform>تعذّرت قراءة سجل واحد</numerusform>
            <numerusform>تعذّرت قراءة سجلين</numerusform>
            <numerusform>تعذّرت قراءة %n سجلات</numerusform>
            <numerusform>تعذّرت قراءة %n سجلًا</numerusform>
            <numerusform>تعذّرت قراءة %n سجل</numerusform>
        </translation>
    </message>
    <message>
        <source>Read from the tools’ own logs · %1</source>
        <comment>13:06</comment>
        <translation>من سجلات الأدوات نفسها · %1</translation>
    </message>
</context>
<context>
    <name>Velvetnook::BusNotifications</name>
    <message>
        <source>The notification service does not answer.</source>
        <translation>خدمة الإشعارات لا تجيب.</translation>
    </message>
    <message>
        <source>Nothing in this session shows notifications.</source>
        <translation>لا شيء في هذه الجلسة يعرض الإشعارات.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
</context>
<context>
    <name>Velvetnook::BusTray</name>
    <message>
        <source>No panel of this session shows tray icons.</source>
        <translation>لا لوحة في هذه الجلسة تعرض أيقونات الصينية.</translation>
    </message>
    <message>
        <source>The session&apos;s tray does not answer.</source>
        <translation>صينية الجلسة لا تجيب.</translation>
    </message>
    <message>
        <source>There is no tray in this session.</source>
        <translation>لا صينية في هذه الجلسة.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::CalendarPageViewModel</name>
    <message>
        <source>As in my country</source>
        <translation>كما في بلدي</translation>
    </message>
    <message>
        <source>Only files of this computer can be added.</source>
        <translation>لا تُضاف إلا ملفات هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Write the whole path, such as ~/calendars</source>
        <translation>اكتب المسار كاملًا، مثل ~/calendars</translation>
    </message>
    <message>
        <source>Taken off the list; the file stays</source>
        <translation>أُزيل من القائمة؛ والملف باقٍ</translation>
    </message>
    <message>
        <source>No calendar is there yet</source>
        <translation>لا تقويم بعد</translation>
    </message>
    <message>
        <source>Reading your calendars…</source>
        <translation>تُقرأ تقاويمك…</translation>
    </message>
    <message>
        <source>Nothing planned</source>
        <translation>لا مواعيد</translation>
    </message>
    <message numerus="yes">
        <source>%n calendar(s) could not be read in full</source>
        <translation>
            <numerusform>تعذّرت قراءة %n تقويم كاملًا</numerusform>
            <numerusform>تعذّرت قراءة تقويم واحد كاملًا</numerusform>
            <numerusform>تعذّرت قراءة تقويمين كاملين</numerusform>
            <numerusform>تعذّرت قراءة %n تقاويم كاملة</numerusform>
            <numerusform>تعذّرت قراءة %n تقويمًا كاملًا</numerusform>
            <numerusform>تعذّرت قراءة %n تقويم كاملًا</numerusform>
        </translation>
    </message>
    <message>
        <source>Some series could not be counted out</source>
        <translation>تعذّر حساب بعض المواعيد المتكررة</translation>
    </message>
    <message>
        <source>Your calendar files are only read</source>
        <translation>تُقرأ ملفات تقاويمك فقط</translation>
    </message>
    <message numerus="yes">
        <source>Read only · %n calendar(s)</source>
        <translation>
            <numerusform>للقراءة فقط · %n تقويم</numerusform>
            <numerusform>للقراءة فقط · تقويم واحد</numerusform>
            <numerusform>للقراءة فقط · تقويمان</numerusform>
            <numerusform>للقراءة فقط · %n تقاويم</numerusform>
            <numerusform>للقراءة فقط · %n تقويمًا</numerusform>
            <numerusform>للقراءة فقط · %n تقويم</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Velvetnook::CalendarRows</name>
    <message>
        <source>all day</source>
        <translation>كل اليوم</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more like it.</source>
        <translation>
            <numerusform>و%n مثله.</numerusform>
            <numerusform>وواحد مثله.</numerusform>
            <numerusform>واثنان مثله.</numerusform>
            <numerusform>و%n مثله.</numerusform>
            <numerusform>و%n مثله.</numerusform>
            <numerusform>و%n مثله.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s) in it could not be read.</source>
        <translation>
            <numerusform>تعذّرت قراءة %n موعد فيه.</numerusform>
            <numerusform>تعذّرت قراءة موعد واحد فيه.</numerusform>
            <numerusform>تعذّرت قراءة موعدين فيه.</numerusform>
            <numerusform>تعذّرت قراءة %n مواعيد فيه.</numerusform>
            <numerusform>تعذّرت قراءة %n موعدًا فيه.</numerusform>
            <numerusform>تعذّرت قراءة %n موعد فيه.</numerusform>
        </translation>
    </message>
    <message>
        <source>(no title)</source>
        <translation>(بلا عنوان)</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>بعد %1</translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n موعد</numerusform>
            <numerusform>موعد واحد</numerusform>
            <numerusform>موعدان</numerusform>
            <numerusform>%n مواعيد</numerusform>
            <numerusform>%n موعدًا</numerusform>
            <numerusform>%n موعد</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Velvetnook::ClipboardPage</name>
    <message numerus="yes">
        <source>%n day(s)</source>
        <translation>
            <numerusform>لا أيام</numerusform>
            <numerusform>يوم واحد</numerusform>
            <numerusform>يومان</numerusform>
            <numerusform>%n أيام</numerusform>
            <numerusform>%n يومًا</numerusform>
            <numerusform>%n يوم</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 م.ب</translation>
    </message>
    <message>
        <source>The name of one application, without a comma</source>
        <translation>اسم تطبيق واحد، بلا فاصلة</translation>
    </message>
</context>
<context>
    <name>Velvetnook::ClipboardViewModel</name>
    <message>
        <source>Opening the history…</source>
        <translation>يُفتح السجل…</translation>
    </message>
    <message>
        <source>Nothing copied yet</source>
        <translation>لم يُنسخ شيء بعد</translation>
    </message>
    <message>
        <source>What you copy is not kept yet</source>
        <translation>ما تنسخه لا يُحفظ بعد</translation>
    </message>
    <message>
        <source>This desktop does not tell what is copied. What “kest clipboard add” keeps shows here.</source>
        <translation>سطح المكتب هذا لا يُخبر بما يُنسخ. يظهر هنا ما يحفظه الأمر “kest clipboard add”.</translation>
    </message>
    <message>
        <source>Recording is paused.</source>
        <translation>التسجيل متوقف مؤقتًا.</translation>
    </message>
    <message>
        <source>Copy something anywhere and it shows here.</source>
        <translation>انسخ شيئًا من أي مكان فيظهر هنا.</translation>
    </message>
    <message>
        <source>Turned on, it is sealed with a key from your keyring and stays on this computer. What is marked as a password is left out.</source>
        <translation>إن شغّلته خُتم بمفتاح من حافظة مفاتيحك وبقي على هذا الحاسوب. ويُترك ما عُلّم أنه كلمة مرور.</translation>
    </message>
    <message>
        <source>Without a keyring nothing is kept: its key never stands in a file.</source>
        <translation>بلا حافظة مفاتيح لا يُحفظ شيء: فالمفتاح لا يوضع في ملف أبدًا.</translation>
    </message>
    <message>
        <source>The history is sealed with a key that it keeps.</source>
        <translation>السجل مختوم بمفتاح محفوظ فيها.</translation>
    </message>
    <message>
        <source>Keep what I copy</source>
        <translation>حفظ ما أنسخه</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>حاول مجددًا</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>فتح القفل…</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>Nothing of this kind here</source>
        <translation>لا شيء من هذا النوع هنا</translation>
    </message>
    <message>
        <source>Nothing here has these words</source>
        <translation>لا شيء هنا فيه هذه الكلمات</translation>
    </message>
    <message>
        <source>Clipboard · paused</source>
        <translation>الحافظة · متوقفة مؤقتًا</translation>
    </message>
    <message>
        <source>Not recording · %1, encrypted</source>
        <translation>لا تسجيل · %1، مشفّرة</translation>
    </message>
    <message>
        <source>Clipboard · paused · %1, encrypted</source>
        <translation>الحافظة · متوقفة مؤقتًا · %1، مشفّرة</translation>
    </message>
    <message>
        <source>Recording · %1, encrypted</source>
        <translation>تسجيل · %1، مشفّرة</translation>
    </message>
    <message>
        <source>%1, encrypted · copies cannot be watched here</source>
        <translation>%1، مشفّرة · لا يمكن رصد النسخ هنا</translation>
    </message>
    <message>
        <source>Turn on</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
</context>
<context>
    <name>Velvetnook::CounterViewModel</name>
    <message>
        <source>Paused</source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Target reached</source>
        <translation>بلغتَ الهدف</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>من %1</translation>
    </message>
    <message>
        <source>open count</source>
        <translation>عدّ مفتوح</translation>
    </message>
    <message>
        <source>Started %1</source>
        <translation>بدأ في %1</translation>
    </message>
    <message>
        <source>Paused at %1 since %2</source>
        <translation>متوقف عند %1 منذ %2</translation>
    </message>
    <message>
        <source>Paused at %1</source>
        <translation>متوقف عند %1</translation>
    </message>
    <message>
        <source>%1 reached. Counting on keeps this session open.</source>
        <translation>بلغتَ %1. متابعة العدّ تُبقي الجلسة مفتوحة.</translation>
    </message>
    <message>
        <source>Open count · one turn of the ring is %1</source>
        <translation>عدّ مفتوح · دورة الحلقة %1</translation>
    </message>
    <message>
        <source>Not started yet</source>
        <translation>لم يبدأ بعد</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Your %1 counts will be gone; the history is off.</source>
        <translation>ستذهب عدّاتك (%1)؛ فالسجل متوقف.</translation>
    </message>
    <message>
        <source>Your one count will not be kept in the history. Finish keeps it.</source>
        <translation>عدّتك الواحدة لن تُحفظ في السجل. الإنهاء يحفظها.</translation>
    </message>
    <message>
        <source>Your %1 counts will not be kept in the history. Finish keeps them.</source>
        <translation>عدّاتك (%1) لن تُحفظ في السجل. الإنهاء يحفظها.</translation>
    </message>
    <message>
        <source>%1 kept in the history.</source>
        <translation>حُفظ %1 في السجل.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::DataSettings</name>
    <message>
        <source>Replace local data?</source>
        <translation>هل تستبدل البيانات المحلية؟</translation>
    </message>
    <message>
        <source>Clear the history?</source>
        <translation>هل تمسح السجل؟</translation>
    </message>
    <message>
        <source>Reset everything?</source>
        <translation>هل تصفّر كل شيء؟</translation>
    </message>
    <message>
        <source>Finished sessions are forgotten, and what was copied, completed and used. This cannot be taken back.</source>
        <translation>تُنسى الجلسات المنتهية وما نُسخ وأُكمل واستُعمل. لا رجوع عن ذلك.</translation>
    </message>
    <message>
        <source>Your counts, notes, timers and workspaces are removed. Settings, tools and their order stay. This cannot be taken back.</source>
        <translation>تُزال عدّاتك وملاحظاتك ومؤقّتاتك ومساحات عملك. وتبقى الإعدادات والأدوات وترتيبها. لا رجوع عن ذلك.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>تصفير</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>لم يتغيّر شيء.</translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) and the settings are in %1</source>
        <translation>
            <numerusform>الإعدادات في %1، ولا سجلات (%n)</numerusform>
            <numerusform>سجل واحد والإعدادات في %1</numerusform>
            <numerusform>سجلّان والإعدادات في %1</numerusform>
            <numerusform>%n سجلات والإعدادات في %1</numerusform>
            <numerusform>%n سجلًا والإعدادات في %1</numerusform>
            <numerusform>%n سجل والإعدادات في %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. It is larger than what an import accepts.</source>
        <translation>%1. وهو أكبر مما يقبله الاستيراد.</translation>
    </message>
    <message>
        <source>This replaces devotional and portable tool data.</source>
        <translation>يستبدل هذا بيانات الأذكار وبيانات الأدوات المنقولة.</translation>
    </message>
    <message>
        <source>Records: %1 here, %2 in the backup. Finished sessions: %3 here, %4 in the backup.</source>
        <translation>السجلات: %1 هنا، و%2 في النسخة. الجلسات المنتهية: %3 هنا، و%4 في النسخة.</translation>
    </message>
    <message>
        <source>The backup was made on %1 at %2.</source>
        <translation>أُنشئت النسخة في %1 عند %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) and the settings were imported.</source>
        <translation>
            <numerusform>استُوردت الإعدادات، ولا سجلات (%n).</numerusform>
            <numerusform>استُورد سجل واحد والإعدادات.</numerusform>
            <numerusform>استُورد سجلّان والإعدادات.</numerusform>
            <numerusform>استُوردت %n سجلات والإعدادات.</numerusform>
            <numerusform>استُورد %n سجلًا والإعدادات.</numerusform>
            <numerusform>استُورد %n سجل والإعدادات.</numerusform>
        </translation>
    </message>
    <message>
        <source>The history is empty.</source>
        <translation>السجل فارغ.</translation>
    </message>
    <message>
        <source>Everything was reset.</source>
        <translation>صُفّر كل شيء.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::DesktopActivity</name>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>لا تخبر هذه الجلسة أي تطبيق في المقدمة.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::DockSettings</name>
    <message>
        <source>This session lets no program stand at an edge of the screen.</source>
        <translation>لا تتيح هذه الجلسة لبرنامج أن يقف عند حافة الشاشة.</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>اليسار</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>الأسفل</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>اليمين</translation>
    </message>
    <message>
        <source>Always in sight</source>
        <translation>ظاهر دائمًا</translation>
    </message>
    <message>
        <source>At the edge</source>
        <translation>عند الحافة</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>صغير</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>متوسط</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>كبير</translation>
    </message>
    <message>
        <source>Compact</source>
        <translation>مدمج</translation>
    </message>
    <message>
        <source>Comfortable</source>
        <translation>مريح</translation>
    </message>
    <message>
        <source>Frosted</source>
        <translation>زجاجي</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>مصمت</translation>
    </message>
</context>
<context>
    <name>Velvetnook::DockViewModel</name>
    <message>
        <source>New</source>
        <translation>جديدة</translation>
    </message>
    <message>
        <source>%1 removed.</source>
        <translation>أُزيل %1.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>item, reason</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Files, folders, applications and web addresses can lie here.</source>
        <translation>توضع هنا ملفات ومجلدات وتطبيقات وعناوين ويب.</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>فاصل</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>حتى %1</translation>
    </message>
    <message>
        <source>until Velvetnook closes</source>
        <translation>حتى يُغلق Velvetnook</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Not done: %1</source>
        <translation>لم يتمّ ذلك: %1</translation>
    </message>
</context>
<context>
    <name>Velvetnook::FileGlance</name>
    <message>
        <source>%1 bytes</source>
        <translation>%1 بايت</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 ك.ب</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 م.ب</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 غ.ب</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 ت.ب</translation>
    </message>
</context>
<context>
    <name>Velvetnook::FileOpening</name>
    <message>
        <source>No program here opens this.</source>
        <translation>لا برنامج هنا يفتح هذا.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::FilesViewModel</name>
    <message>
        <source>No file here has this name</source>
        <translation>لا ملف هنا بهذا الاسم</translation>
    </message>
    <message>
        <source>Nothing pinned yet</source>
        <translation>لم يُثبَّت شيء بعد</translation>
    </message>
    <message>
        <source>Nothing was opened lately</source>
        <translation>لم يُفتح شيء مؤخرًا</translation>
    </message>
    <message>
        <source>Drop files and folders here, or pin what you opened lately.</source>
        <translation>أفلت الملفات والمجلدات هنا، أو ثبّت ما فتحته مؤخرًا.</translation>
    </message>
    <message>
        <source>What your programs open appears here.</source>
        <translation>يظهر هنا ما تفتحه برامجك.</translation>
    </message>
    <message>
        <source>Pinned files stay where they are</source>
        <translation>تبقى الملفات المثبّتة في أماكنها</translation>
    </message>
    <message>
        <source>From the list that your programs keep</source>
        <translation>من القائمة التي تحفظها برامجك</translation>
    </message>
    <message>
        <source>Not where it was</source>
        <translation>ليس في مكانه</translation>
    </message>
    <message>
        <source>%1 is not where it was.</source>
        <translation>%1 ليس في مكانه.</translation>
    </message>
    <message>
        <source>Path copied</source>
        <translation>نُسخ المسار</translation>
    </message>
    <message>
        <source>No longer pinned</source>
        <translation>أُلغي التثبيت</translation>
    </message>
</context>
<context>
    <name>Velvetnook::Formatting</name>
    <message>
        <source>am</source>
        <translation>ص</translation>
    </message>
    <message>
        <source>pm</source>
        <translation>م</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>%1 h %2</source>
        <translation>%1 س %2 د</translation>
    </message>
</context>
<context>
    <name>Velvetnook::FridayAlarm</name>
    <message>
        <source>Friday</source>
        <translation>الجمعة</translation>
    </message>
    <message>
        <source>Begin counting</source>
        <translation>ابدأ العدّ</translation>
    </message>
    <message>
        <source>Not today</source>
        <translation>ليس اليوم</translation>
    </message>
</context>
<context>
    <name>Velvetnook::FridayViewModel</name>
    <message>
        <source>No times on this date here.</source>
        <translation>لا مواقيت لهذا التاريخ هنا.</translation>
    </message>
    <message>
        <source>Your mosque may differ.</source>
        <translation>قد يختلف مسجدك.</translation>
    </message>
    <message>
        <source>Shown once each Friday, quietly</source>
        <translation>تظهر مرة كل جمعة، بهدوء</translation>
    </message>
    <message>
        <source>Not shown by itself on Fridays</source>
        <translation>لا تظهر من نفسها أيام الجمعة</translation>
    </message>
</context>
<context>
    <name>Velvetnook::GeneralSettings</name>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>As the language</source>
        <translation>حسب اللغة</translation>
    </message>
    <message>
        <source>1:48 pm</source>
        <translation>1:48 م</translation>
    </message>
</context>
<context>
    <name>Velvetnook::GlobalKeys</name>
    <message>
        <source>This kind of session gives no program a key of its own. Bind %1 to “%2” in the desktop&apos;s keyboard settings.</source>
        <translation>لا يمنح هذا النوع من الجلسات برنامجًا مفتاحًا خاصًا. اربط %1 بالأمر «%2» في إعدادات لوحة المفاتيح لسطح المكتب.</translation>
    </message>
    <message>
        <source>This keyboard has no such key. Choose another.</source>
        <translation>لا مفتاح كهذا في لوحة المفاتيح. اختر غيره.</translation>
    </message>
    <message>
        <source>%1 is another shortcut&apos;s already. Choose another.</source>
        <translation>صار %1 لاختصار آخر. اختر غيره.</translation>
    </message>
    <message>
        <source>Another program has %1. Choose another key, or bind one to “%2” in the desktop&apos;s keyboard settings.</source>
        <translation>صار %1 لبرنامج آخر. اختر مفتاحًا آخر، أو اربط واحدًا بالأمر «%2» في إعدادات لوحة المفاتيح لسطح المكتب.</translation>
    </message>
    <message>
        <source>No key is set.</source>
        <translation>لا مفتاح معيّن.</translation>
    </message>
    <message>
        <source>The desktop is asked for %1.</source>
        <translation>يُطلَب %1 من سطح المكتب.</translation>
    </message>
    <message>
        <source>The desktop has it under: %1</source>
        <comment>a key</comment>
        <translation>خصّص له سطح المكتب: %1</translation>
    </message>
    <message>
        <source>The desktop did not give %1. Its keyboard settings can bind a key to “%2”.</source>
        <translation>لم يمنح سطح المكتب %1. يمكن ربط مفتاح بالأمر «%2» من إعدادات لوحة المفاتيح.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::HistoryViewModel</name>
    <message>
        <source>today, in one session</source>
        <translation>اليوم، في جلسة واحدة</translation>
    </message>
    <message>
        <source>today, in %1 sessions</source>
        <translation>اليوم، عدد الجلسات %1</translation>
    </message>
    <message>
        <source>in 7 days, one session</source>
        <translation>في ٧ أيام، جلسة واحدة</translation>
    </message>
    <message>
        <source>in 7 days, %1 sessions</source>
        <translation>في ٧ أيام، عدد الجلسات %1</translation>
    </message>
    <message>
        <source>in 30 days, one session</source>
        <translation>في ٣٠ يومًا، جلسة واحدة</translation>
    </message>
    <message>
        <source>in 30 days, %1 sessions</source>
        <translation>في ٣٠ يومًا، عدد الجلسات %1</translation>
    </message>
    <message>
        <source>in all, one session</source>
        <translation>في المجموع، جلسة واحدة</translation>
    </message>
    <message>
        <source>in all, %1 sessions</source>
        <translation>في المجموع، عدد الجلسات %1</translation>
    </message>
    <message>
        <source>one session</source>
        <translation>جلسة واحدة</translation>
    </message>
    <message>
        <source>%1 sessions</source>
        <translation>عدد الجلسات %1</translation>
    </message>
    <message>
        <source>The history is off: what you finish now is not kept</source>
        <translation>السجل متوقف: ما تنهيه الآن لا يُحفظ</translation>
    </message>
    <message>
        <source>History is kept on this computer</source>
        <translation>السجل محفوظ على هذا الحاسوب</translation>
    </message>
</context>
<context>
    <name>Velvetnook::HomeViewModel</name>
    <message>
        <source>Choose where you are</source>
        <translation>اختر مكانك</translation>
    </message>
    <message>
        <source>No times on this date here.</source>
        <translation>لا مواقيت لهذا التاريخ هنا.</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>%1, open count</source>
        <translation>%1، عدّ مفتوح</translation>
    </message>
    <message>
        <source>%1 · paused</source>
        <translation>%1 · متوقف</translation>
    </message>
    <message>
        <source>%1 · since %2</source>
        <translation>%1 · منذ %2</translation>
    </message>
    <message>
        <source>Prayer</source>
        <translation>الصلاة</translation>
    </message>
    <message>
        <source>s</source>
        <translation>ث</translation>
    </message>
    <message>
        <source>min</source>
        <translation>د</translation>
    </message>
    <message>
        <source>h</source>
        <translation>س</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>مؤقّت</translation>
    </message>
    <message>
        <source>Nothing is running</source>
        <translation>لا شيء يعمل</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>انتهى</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>متوقف</translation>
    </message>
    <message>
        <source>Clipboard · paused</source>
        <translation>الحافظة · متوقفة مؤقتًا</translation>
    </message>
</context>
<context>
    <name>Velvetnook::HookConnections</name>
    <message>
        <source>The command kest is not where this program is: %1</source>
        <translation>ليس الأمر kest حيث هذا البرنامج: %1</translation>
    </message>
    <message>
        <source>There is nothing to change in %1</source>
        <translation>لا شيء يُغيَّر في %1</translation>
    </message>
    <message>
        <source>%1 is connected.</source>
        <translation>رُبط %1.</translation>
    </message>
    <message>
        <source>%1 is not connected any more.</source>
        <translation>لم يعد %1 مربوطًا.</translation>
    </message>
    <message>
        <source>%1 The file as it first was: %2</source>
        <translation>%1 الملف كما كان في الأصل: %2</translation>
    </message>
</context>
<context>
    <name>Velvetnook::InsightsViewModel</name>
    <message>
        <source>Fetching from %1…</source>
        <translation>يجري الجلب من %1…</translation>
    </message>
    <message>
        <source>%1 is not connected yet.</source>
        <translation>لم يوصل %1 بعد.</translation>
    </message>
    <message>
        <source>Refresh returns at %1.</source>
        <translation>يعود التحديث عند %1.</translation>
    </message>
    <message>
        <source>%1 online now</source>
        <translation>%1 متّصلون الآن</translation>
    </message>
    <message>
        <source>Fetched %1 · %2</source>
        <translation>جُلب %1 · %2</translation>
    </message>
    <message>
        <source>Fetched %1</source>
        <translation>جُلب %1</translation>
    </message>
    <message>
        <source>DataFast asks for the website’s id.</source>
        <translation>يطلب DataFast معرّف الموقع.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::LinksViewModel</name>
    <message>
        <source>No bookmarks yet</source>
        <translation>لا إشارات بعد</translation>
    </message>
    <message numerus="yes">
        <source>%n bookmark(s)</source>
        <translation>
            <numerusform>%n إشارة</numerusform>
            <numerusform>إشارة واحدة</numerusform>
            <numerusform>إشارتان</numerusform>
            <numerusform>%n إشارات</numerusform>
            <numerusform>%n إشارة</numerusform>
            <numerusform>%n إشارة</numerusform>
        </translation>
    </message>
    <message>
        <source>Use a source URL beginning with https://</source>
        <translation>استخدم رابط مصدر يبدأ بـ https://</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>نُسخ</translation>
    </message>
    <message>
        <source>Bookmark removed</source>
        <translation>أُزيلت الإشارة</translation>
    </message>
</context>
<context>
    <name>Velvetnook::LocalDay</name>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>أمس</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>Velvetnook::LoginPower</name>
    <message>
        <source>Whether the screen is locked is not known.</source>
        <translation>لا يُعلم أمقفلة الشاشة أم لا.</translation>
    </message>
    <message>
        <source>This system does not tell when it sleeps.</source>
        <translation>لا يخبر هذا النظام متى ينام.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::MixerRows</name>
    <message>
        <source>Muted</source>
        <translation>مكتوم</translation>
    </message>
</context>
<context>
    <name>Velvetnook::MonitorChart</name>
    <message>
        <source>mean and peak, all cores</source>
        <translation>المتوسط والذروة، كل الأنوية</translation>
    </message>
    <message>
        <source>mean and peak</source>
        <translation>المتوسط والذروة</translation>
    </message>
    <message>
        <source>%1/%2</source>
        <comment>day and month</comment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>الذروة %1</translation>
    </message>
    <message>
        <source>History off</source>
        <translation>السجل متوقف</translation>
    </message>
    <message>
        <source>History paused</source>
        <translation>السجل متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>History on</source>
        <translation>السجل يعمل</translation>
    </message>
    <message>
        <source>one day</source>
        <translation>يوم واحد</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 أيام</translation>
    </message>
</context>
<context>
    <name>Velvetnook::MonitorOptions</name>
    <message>
        <source>Off</source>
        <comment>no threshold</comment>
        <translation>متوقف</translation>
    </message>
</context>
<context>
    <name>Velvetnook::MonitorTile</name>
    <message>
        <source>CPU</source>
        <translation>المعالج</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>القرص</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>one core</source>
        <translation>نواة واحدة</translation>
    </message>
    <message>
        <source>%1 cores</source>
        <translation>%1 أنوية</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>9.4 of 16 GB</comment>
        <translation>من %1</translation>
    </message>
    <message>
        <source>↑ %1</source>
        <comment>upload</comment>
        <translation>↑ %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 متاح</translation>
    </message>
</context>
<context>
    <name>Velvetnook::MonitorViewModel</name>
    <message>
        <source>Review</source>
        <translation>مراجعة</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>النواة</translation>
    </message>
    <message>
        <source>%1, processor %2, memory %3</source>
        <translation>%1، المعالج %2، الذاكرة %3</translation>
    </message>
    <message>
        <source>%1, number %2, processor %3, memory %4</source>
        <translation>%1، الرقم %2، المعالج %3، الذاكرة %4</translation>
    </message>
    <message>
        <source>Battery of the accessory</source>
        <translation>بطارية الملحق</translation>
    </message>
    <message>
        <source>Listens on %1</source>
        <translation>يستمع على %1</translation>
    </message>
    <message>
        <source>Up %1</source>
        <translation>يعمل منذ %1</translation>
    </message>
    <message>
        <source>one process restricted</source>
        <translation>عملية واحدة محجوبة</translation>
    </message>
    <message>
        <source>%1 processes restricted</source>
        <translation>%1 عمليات محجوبة</translation>
    </message>
    <message>
        <source>Clear the monitor’s history?</source>
        <translation>مسح سجل المراقب؟</translation>
    </message>
    <message>
        <source>Kill %1?</source>
        <translation>إنهاء %1 قسرًا؟</translation>
    </message>
    <message>
        <source>Quit %1?</source>
        <translation>إنهاء %1؟</translation>
    </message>
    <message>
        <source>All that was recorded so far is deleted. This cannot be undone.</source>
        <translation>يُحذف كل ما سُجّل حتى الآن. لا يمكن التراجع عن هذا.</translation>
    </message>
    <message>
        <source>It ends at once. What it has not saved is lost.</source>
        <translation>ينتهي فورًا. يضيع ما لم يحفظه.</translation>
    </message>
    <message>
        <source>It is asked to end, and may save its work first or refuse.</source>
        <translation>يُطلب منه أن ينتهي، وقد يحفظ عمله أولًا أو يرفض.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Kill</source>
        <translation>إنهاء قسري</translation>
    </message>
    <message>
        <source>Quit</source>
        <comment>an application</comment>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>The monitor’s history is cleared.</source>
        <translation>مُسح سجل المراقب.</translation>
    </message>
    <message>
        <source>%1 is ended.</source>
        <translation>أُنهي %1.</translation>
    </message>
    <message>
        <source>Asked %1 to quit.</source>
        <translation>طُلب من %1 أن ينتهي.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>حُفظت باسم %1.</translation>
    </message>
    <message>
        <source>The image could not be written: %1</source>
        <translation>تعذّرت كتابة الصورة: %1</translation>
    </message>
</context>
<context>
    <name>Velvetnook::MusicViewModel</name>
    <message>
        <source>Nothing is playing</source>
        <translation>لا شيء يعمل</translation>
    </message>
    <message>
        <source>Browser tab · connected</source>
        <translation>لسان متصفّح · موصول</translation>
    </message>
    <message>
        <source>Browser tab · %1</source>
        <translation>لسان متصفّح · %1</translation>
    </message>
    <message>
        <source>The one that played last</source>
        <translation>آخر ما شُغّل</translation>
    </message>
    <message>
        <source>The connected browser tab</source>
        <translation>لسان المتصفّح الموصول</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1٪</translation>
    </message>
</context>
<context>
    <name>Velvetnook::NamesViewModel</name>
    <message>
        <source>Search %1 Names</source>
        <translation>البحث في %1 اسمًا</translation>
    </message>
    <message>
        <source>Search %1 phrases</source>
        <translation>البحث في الأذكار (%1)</translation>
    </message>
    <message>
        <source>Search favourites</source>
        <translation>البحث في المفضّلة</translation>
    </message>
    <message>
        <source>No favourites yet</source>
        <translation>لا مفضّلة بعد</translation>
    </message>
    <message>
        <source>Nothing has these words</source>
        <translation>لا شيء بهذه الكلمات</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
</context>
<context>
    <name>Velvetnook::NotchSettings</name>
    <message>
        <source>Mini</source>
        <translation>صغير جدًا</translation>
    </message>
    <message>
        <source>Compact</source>
        <translation>مدمج</translation>
    </message>
    <message>
        <source>Comfortable</source>
        <translation>مريح</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>العربية</translation>
    </message>
    <message>
        <source>Transliteration</source>
        <translation>الكتابة اللاتينية</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>المعنى</translation>
    </message>
    <message>
        <source>One phrase</source>
        <translation>ذِكر واحد</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>المفضّلة</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>يومي</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>Main screen</source>
        <translation>الشاشة الرئيسية</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>غير موصولة</translation>
    </message>
    <message>
        <source>The strip keeps away for a while.</source>
        <translation>يبتعد الشريط بعض الوقت.</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>متوقف حتى %1</translation>
    </message>
    <message>
        <source>Paused until tomorrow</source>
        <translation>متوقف حتى الغد</translation>
    </message>
    <message>
        <source>The name of one application, without a comma</source>
        <translation>اسم تطبيق واحد، بلا فاصلة</translation>
    </message>
</context>
<context>
    <name>Velvetnook::NotesViewModel</name>
    <message>
        <source>Scratchpad</source>
        <translation>المسوّدة</translation>
    </message>
    <message>
        <source>Note removed</source>
        <translation>أُزيلت الملاحظة</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>No note has these words</source>
        <translation>لا ملاحظة بهذه الكلمات</translation>
    </message>
    <message>
        <source>Notes stay on this computer</source>
        <translation>الملاحظات تبقى على هذا الحاسوب</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) on this computer</source>
        <translation>
            <numerusform>لا ملاحظات على هذا الحاسوب</numerusform>
            <numerusform>ملاحظة واحدة على هذا الحاسوب</numerusform>
            <numerusform>ملاحظتان على هذا الحاسوب</numerusform>
            <numerusform>%n ملاحظات على هذا الحاسوب</numerusform>
            <numerusform>%n ملاحظة على هذا الحاسوب</numerusform>
            <numerusform>%n ملاحظة على هذا الحاسوب</numerusform>
        </translation>
    </message>
    <message>
        <source>saving…</source>
        <translation>جارٍ الحفظ…</translation>
    </message>
    <message>
        <source>saved %1</source>
        <translation>حُفظت في %1</translation>
    </message>
    <message numerus="yes">
        <source>%n word(s)</source>
        <translation>
            <numerusform>لا كلمات</numerusform>
            <numerusform>كلمة واحدة</numerusform>
            <numerusform>كلمتان</numerusform>
            <numerusform>%n كلمات</numerusform>
            <numerusform>%n كلمة</numerusform>
            <numerusform>%n كلمة</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>غير محفوظة</translation>
    </message>
</context>
<context>
    <name>Velvetnook::OnboardingViewModel</name>
    <message>
        <source>Open</source>
        <translation>مفتوح</translation>
    </message>
</context>
<context>
    <name>Velvetnook::OverlayViewModel</name>
    <message>
        <source>Muted</source>
        <translation>مكتوم</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>الصوت %1</translation>
    </message>
    <message>
        <source>Brightness %1</source>
        <translation>السطوع %1</translation>
    </message>
    <message>
        <source>Keyboard light %1</source>
        <translation>إضاءة لوحة المفاتيح %1</translation>
    </message>
</context>
<context>
    <name>Velvetnook::PaletteViewModel</name>
    <message>
        <source>Up to 12 significant digits</source>
        <translation>حتى ١٢ رقمًا معنويًا</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s)</source>
        <translation>
            <numerusform>لا نتائج</numerusform>
            <numerusform>نتيجة واحدة</numerusform>
            <numerusform>نتيجتان</numerusform>
            <numerusform>%n نتائج</numerusform>
            <numerusform>%n نتيجة</numerusform>
            <numerusform>%n نتيجة</numerusform>
        </translation>
    </message>
    <message>
        <source>choose</source>
        <translation>اختيار</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>do it</source>
        <translation>تنفيذ</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Ctrl Enter</source>
        <translation>Ctrl Enter</translation>
    </message>
    <message>
        <source>open Units</source>
        <translation>فتح الوحدات</translation>
    </message>
    <message>
        <source>open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>more actions</source>
        <translation>إجراءات أخرى</translation>
    </message>
    <message>
        <source>Ctrl %1</source>
        <translation>Ctrl %1</translation>
    </message>
</context>
<context>
    <name>Velvetnook::PanelViewModel</name>
    <message>
        <source>All tools</source>
        <translation>كل الأدوات</translation>
    </message>
    <message>
        <source>%1 is turned off. The settings turn it on again.</source>
        <translation>%1: متوقف. يمكن تشغيله من الإعدادات.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::PlaceSettings</name>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>%1° %2</source>
        <comment>degrees and N, S, E or W</comment>
        <translation>%1° %2</translation>
    </message>
    <message>
        <source>N</source>
        <translation>ش</translation>
    </message>
    <message>
        <source>S</source>
        <translation>ج</translation>
    </message>
    <message>
        <source>E</source>
        <translation>ق</translation>
    </message>
    <message>
        <source>W</source>
        <translation>غ</translation>
    </message>
    <message>
        <source>No city is called “%1”</source>
        <translation>لا مدينة باسم «%1»</translation>
    </message>
    <message>
        <source>A number from −90 to 90</source>
        <translation>رقم من −٩٠ إلى ٩٠</translation>
    </message>
    <message>
        <source>A number from −180 to 180</source>
        <translation>رقم من −١٨٠ إلى ١٨٠</translation>
    </message>
    <message>
        <source>Two letters, such as GB</source>
        <translation>حرفان، مثل GB</translation>
    </message>
</context>
<context>
    <name>Velvetnook::PortalLook</name>
    <message>
        <source>This desktop does not tell how it looks.</source>
        <translation>لا يخبر سطح المكتب هذا عن مظهره.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::PrayerAlarm</name>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Calculated prayer time. Check your local timetable.</source>
        <translation>وقت صلاة محسوب. راجع التقويم المحلي.</translation>
    </message>
    <message>
        <source>Prayer times</source>
        <translation>مواقيت الصلاة</translation>
    </message>
</context>
<context>
    <name>Velvetnook::PrayerSettings</name>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Muslim World League</source>
        <translation>رابطة العالم الإسلامي</translation>
    </message>
    <message>
        <source>Egyptian Authority</source>
        <translation>الهيئة المصرية</translation>
    </message>
    <message>
        <source>Karachi</source>
        <translation>كراتشي</translation>
    </message>
    <message>
        <source>Umm al-Qura</source>
        <translation>أم القرى</translation>
    </message>
    <message>
        <source>Dubai</source>
        <translation>دبي</translation>
    </message>
    <message>
        <source>Moonsighting Committee</source>
        <translation>لجنة رؤية الهلال</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>أمريكا الشمالية</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>الكويت</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>قطر</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>سنغافورة</translation>
    </message>
    <message>
        <source>Tehran</source>
        <translation>طهران</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>تركيا</translation>
    </message>
    <message>
        <source>Whose conventions the times follow</source>
        <translation>الجهة التي تتبع المواقيتُ حسابها</translation>
    </message>
    <message>
        <source>From the country: %1</source>
        <translation>حسب البلد: %1</translation>
    </message>
    <message>
        <source>Shāfiʿī</source>
        <translation>الشافعي</translation>
    </message>
    <message>
        <source>Ḥanafī</source>
        <translation>الحنفي</translation>
    </message>
    <message>
        <source>Middle of the night</source>
        <translation>منتصف الليل</translation>
    </message>
    <message>
        <source>Seventh of the night</source>
        <translation>سُبع الليل</translation>
    </message>
    <message>
        <source>Twilight angle</source>
        <translation>زاوية الشفق</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>%1 d</source>
        <comment>days</comment>
        <translation>%1 ي</translation>
    </message>
    <message>
        <source>Add a location to see your next prayer. You can set it manually.</source>
        <translation>أضف موقعًا لترى صلاتك القادمة. يمكنك تعيينه يدويًا.</translation>
    </message>
    <message>
        <source>The Sun does not rise or set there today.</source>
        <translation>لا تشرق الشمس ولا تغرب هناك اليوم.</translation>
    </message>
    <message>
        <source>Calculated prayer time. Check your local timetable.</source>
        <translation>وقت صلاة محسوب. راجع التقويم المحلي.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::PrayerViewModel</name>
    <message>
        <source>Prayer settings changed. Your current deadline is unchanged.</source>
        <translation>تغيّرت إعدادات الصلاة. موعدك الحالي لم يتغيّر.</translation>
    </message>
    <message>
        <source>Focus until %1</source>
        <translation>تركيز حتى %1</translation>
    </message>
    <message>
        <source>Review revised deadline…</source>
        <translation>مراجعة الموعد المعدّل…</translation>
    </message>
    <message>
        <source>Focus until prayer…</source>
        <translation>تركيز حتى الصلاة…</translation>
    </message>
    <message>
        <source>Focus until prayer?</source>
        <translation>تركيز حتى الصلاة؟</translation>
    </message>
    <message>
        <source>Focus until %1, %2 minutes before %3. Later location or prayer changes will ask you to review the deadline.</source>
        <translation>تركيز حتى %1، قبل %3 بمقدار %2 د. إذا تغيّر المكان أو إعدادات الصلاة بعد ذلك طُلبت منك مراجعة الموعد.</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>There are no times to calculate for this date here: the Sun does not rise or set as usual, or the place skipped the date. Follow your local authority.</source>
        <translation>لا مواقيت تُحسب لهذا التاريخ هنا: الشمس لا تشرق أو لا تغرب كالمعتاد، أو أن المكان تخطّى التاريخ. اتبع جهتك المحلية.</translation>
    </message>
    <message>
        <source>Add a location to see your next prayer. You can set it manually.</source>
        <translation>أضف موقعًا لترى صلاتك القادمة. يمكنك تعيينه يدويًا.</translation>
    </message>
    <message>
        <source>Calculated prayer time. Check your local timetable.</source>
        <translation>وقت صلاة محسوب. راجع التقويم المحلي.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالية</translation>
    </message>
    <message>
        <source>Next prayer</source>
        <translation>الصلاة القادمة</translation>
    </message>
    <message>
        <source>s</source>
        <comment>seconds until a prayer</comment>
        <translation>ث</translation>
    </message>
    <message>
        <source>min</source>
        <comment>minutes until a prayer</comment>
        <translation>د</translation>
    </message>
    <message>
        <source>h</source>
        <comment>hours until a prayer</comment>
        <translation>س</translation>
    </message>
    <message>
        <source>%1 at %2, in %3</source>
        <translation>%1 في %2، بعد %3</translation>
    </message>
    <message>
        <source>%1, no time today</source>
        <translation>%1، لا وقت اليوم</translation>
    </message>
    <message>
        <source>Qibla %1 degrees from north</source>
        <translation>القبلة %1 درجة من الشمال</translation>
    </message>
</context>
<context>
    <name>Velvetnook::PulseServer</name>
    <message>
        <source>The part that knows volumes cannot be loaded: %1</source>
        <translation>تعذّر تحميل الجزء الذي يعرف مستويات الصوت: %1</translation>
    </message>
    <message>
        <source>The sound server cannot be asked.</source>
        <translation>لا يمكن سؤال خادم الصوت.</translation>
    </message>
    <message>
        <source>There is no sound server in this session.</source>
        <translation>لا يوجد خادم صوت في هذه الجلسة.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::PulseSounds</name>
    <message>
        <source>There is no sound server in this session.</source>
        <translation>لا خادم صوت في هذه الجلسة.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::ReminderAlarm</name>
    <message>
        <source>Count</source>
        <translation>عدّ</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>لاحقًا</translation>
    </message>
</context>
<context>
    <name>Velvetnook::RemindersViewModel</name>
    <message>
        <source>Reminders are off.</source>
        <translation>التذكيرات متوقفة.</translation>
    </message>
    <message>
        <source>No day is chosen, so no reminder comes.</source>
        <translation>لم يُختر يوم، فلا يأتي تذكير.</translation>
    </message>
    <message>
        <source>No reminder comes in the next days.</source>
        <translation>لا تذكير في الأيام القادمة.</translation>
    </message>
    <message>
        <source>Next reminder at %1</source>
        <translation>التذكير القادم في %1</translation>
    </message>
    <message>
        <source>Next reminder on %1 at %2</source>
        <translation>التذكير القادم %1 في %2</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>متوقف حتى %1</translation>
    </message>
    <message>
        <source>Paused until %1 at %2</source>
        <translation>متوقف حتى %1 في %2</translation>
    </message>
    <message>
        <source>Notifications allowed.</source>
        <translation>الإشعارات مسموحة.</translation>
    </message>
    <message>
        <source>Notifications denied. Enable Velvetnook in System Settings → Notifications.</source>
        <translation>الإشعارات مرفوضة. فعّل Velvetnook في إعدادات النظام ← الإشعارات.</translation>
    </message>
    <message>
        <source>Choose between 1 and 1440 minutes.</source>
        <translation>اختر بين ١ و١٤٤٠ دقيقة.</translation>
    </message>
    <message>
        <source>Write a time such as 09:00.</source>
        <translation>اكتب وقتًا مثل 09:00.</translation>
    </message>
    <message>
        <source>There is no such day.</source>
        <translation>لا يوم كهذا.</translation>
    </message>
    <message>
        <source>There is no such choice.</source>
        <translation>لا خيار كهذا.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::ScreenTimeViewModel</name>
    <message>
        <source>7 days</source>
        <comment>the last ones</comment>
        <translation>٧ أيام</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>the week before</source>
        <translation>الأسبوع السابق</translation>
    </message>
    <message>
        <source>the day before</source>
        <translation>اليوم السابق</translation>
    </message>
    <message>
        <source>as much as %1</source>
        <translation>مثل %1</translation>
    </message>
    <message>
        <source>%1 less than %2</source>
        <translation>أقل من %2 بمقدار %1</translation>
    </message>
    <message>
        <source>%1 more than %2</source>
        <translation>أكثر من %2 بمقدار %1</translation>
    </message>
    <message>
        <source>Longest stretch %1</source>
        <translation>أطول مدة متصلة %1</translation>
    </message>
    <message>
        <source>under a minute</source>
        <translation>أقل من دقيقة</translation>
    </message>
    <message>
        <source>Nothing is counted now</source>
        <translation>لا شيء يُحسب الآن</translation>
    </message>
    <message>
        <source>Known only to this computer</source>
        <translation>لا يعرفه إلا هذا الحاسوب</translation>
    </message>
</context>
<context>
    <name>Velvetnook::SettingsViewModel</name>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Notch</source>
        <translation>الشريط العلوي</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>الاختصارات</translation>
    </message>
    <message>
        <source>keys palette hotkey keyboard</source>
        <translation>مفاتيح لوحة أوامر اختصار</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>التذكيرات</translation>
    </message>
    <message>
        <source>Prayer</source>
        <translation>الصلاة</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>Data &amp; backup</source>
        <translation>البيانات والنسخ</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>language arabic english digits clock start login history sound onboarding</source>
        <translation>لغة عربية إنجليزية أرقام ساعة بدء دخول سجل صوت</translation>
    </message>
    <message>
        <source>theme dark light accent colour color motion material text size surface transliteration</source>
        <translation>سمة داكن فاتح لون تمييز حركة نص حجم سطح لاتينية</translation>
    </message>
    <message>
        <source>strip panel open delay hidden hide screen display fullscreen applications pause pinned</source>
        <translation>شريط لوحة تأخير مخفي شاشة عرض تطبيقات إيقاف مثبت</translation>
    </message>
    <message>
        <source>Dock</source>
        <translation>الرصيف</translation>
    </message>
    <message>
        <source>workspaces edge side companion hover floating magnification</source>
        <translation>مساحات العمل حافة جانب رفيق مرور عائم تكبير رصيف</translation>
    </message>
    <message>
        <source>notification hours days weekdays interval pause sound test</source>
        <translation>إشعار ساعات أيام فاصل إيقاف تجربة</translation>
    </message>
    <message>
        <source>place city location method asr hanafi latitude qibla hijri adjustments times</source>
        <translation>مكان مدينة موقع طريقة عصر عرض هجري تعديل مواقيت</translation>
    </message>
    <message>
        <source>order favourites favorites tabs header</source>
        <translation>ترتيب مفضلة ألسنة ترويسة</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>الحافظة</translation>
    </message>
    <message>
        <source>copy paste history password exclude days limit</source>
        <translation>نسخ لصق سجل كلمة مرور استثناء أيام حد copy paste clipboard</translation>
    </message>
    <message>
        <source>export import restore erase clear history reset folder file</source>
        <translation>تصدير استيراد مسح سجل تصفير مجلد ملف</translation>
    </message>
    <message>
        <source>version licence license updates capabilities</source>
        <translation>إصدار رخصة تحديثات قدرات</translation>
    </message>
</context>
<context>
    <name>Velvetnook::ShelfViewModel</name>
    <message>
        <source>The picture is too large for the shelf.</source>
        <translation>الصورة أكبر من أن توضع على الرف.</translation>
    </message>
    <message>
        <source>%1 is not where it was.</source>
        <translation>%1 ليس في مكانه.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>نُسخ</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>تغيّر الاسم</translation>
    </message>
    <message>
        <source>Renamed here; the file keeps its name</source>
        <translation>تغيّر الاسم هنا؛ ويبقى اسم الملف</translation>
    </message>
    <message>
        <source>Taken off the shelf</source>
        <translation>رُفع من الرف</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>الرف فارغ</translation>
    </message>
    <message>
        <source>What you put here stays on this computer</source>
        <translation>ما تضعه هنا يبقى على هذا الحاسوب</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) · stays on this computer</source>
        <translation>
            <numerusform>%n ملف · تبقى على هذا الحاسوب</numerusform>
            <numerusform>ملف واحد · يبقى على هذا الحاسوب</numerusform>
            <numerusform>ملفان · يبقيان على هذا الحاسوب</numerusform>
            <numerusform>%n ملفات · تبقى على هذا الحاسوب</numerusform>
            <numerusform>%n ملفًا · تبقى على هذا الحاسوب</numerusform>
            <numerusform>%n ملف · تبقى على هذا الحاسوب</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n thing(s) · stays on this computer</source>
        <translation>
            <numerusform>%n شيء · تبقى على هذا الحاسوب</numerusform>
            <numerusform>شيء واحد · يبقى على هذا الحاسوب</numerusform>
            <numerusform>شيئان · يبقيان على هذا الحاسوب</numerusform>
            <numerusform>%n أشياء · تبقى على هذا الحاسوب</numerusform>
            <numerusform>%n شيئًا · تبقى على هذا الحاسوب</numerusform>
            <numerusform>%n شيء · تبقى على هذا الحاسوب</numerusform>
        </translation>
    </message>
    <message>
        <source>Not where it was</source>
        <translation>ليس في مكانه</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>رابط</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
</context>
<context>
    <name>Velvetnook::ShortcutSettings</name>
    <message>
        <source>Palette</source>
        <translation>لوحة الأوامر</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>اللوحة</translation>
    </message>
    <message>
        <source>No key is set.</source>
        <translation>لا مفتاح معيّن.</translation>
    </message>
    <message>
        <source>It works over every application.</source>
        <translation>يعمل فوق كل تطبيق.</translation>
    </message>
    <message>
        <source>This key cannot be taken. A letter, a digit or F1 to F12 can.</source>
        <translation>لا يؤخذ هذا المفتاح. يؤخذ حرف أو رقم أو F1 إلى F12.</translation>
    </message>
    <message>
        <source>Hold Ctrl, Alt or Super together with it.</source>
        <translation>اضغط معه Ctrl أو Alt أو Super.</translation>
    </message>
    <message>
        <source>%1 opens %2 already.</source>
        <comment>Ctrl+K, Notes</comment>
        <translation>الاختصار %1 يفتح %2.</translation>
    </message>
    <message>
        <source>Dock</source>
        <translation>الرصيف</translation>
    </message>
</context>
<context>
    <name>Velvetnook::SoundMixViewModel</name>
    <message>
        <source>%1%</source>
        <translation>%1٪</translation>
    </message>
    <message>
        <source>Until you stop it</source>
        <translation>حتى توقفها</translation>
    </message>
    <message>
        <source>Off in %1</source>
        <comment>30 min</comment>
        <translation>تتوقّف بعد %1</translation>
    </message>
    <message>
        <source>Choose a sound, or several together</source>
        <translation>اختر صوتًا أو عدّة أصوات معًا</translation>
    </message>
    <message numerus="yes">
        <source>%n sound(s) playing together</source>
        <translation>
            <numerusform>لا صوت يعمل</numerusform>
            <numerusform>صوت واحد يعمل</numerusform>
            <numerusform>صوتان يعملان معًا</numerusform>
            <numerusform>%n أصوات تعمل معًا</numerusform>
            <numerusform>%n صوتًا يعمل معًا</numerusform>
            <numerusform>%n صوت يعمل معًا</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sound(s) paused</source>
        <translation>
            <numerusform>لا صوت موقوف</numerusform>
            <numerusform>صوت واحد موقوف مؤقتًا</numerusform>
            <numerusform>صوتان موقوفان مؤقتًا</numerusform>
            <numerusform>%n أصوات موقوفة مؤقتًا</numerusform>
            <numerusform>%n صوتًا موقوفًا مؤقتًا</numerusform>
            <numerusform>%n صوت موقوف مؤقتًا</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no way to play sounds here.</source>
        <translation>لا سبيل إلى تشغيل الأصوات هنا.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::StoreLender</name>
    <message>
        <source>A kest command is using your data. What you do meanwhile is kept and saved when it ends.</source>
        <translation>أمر kest يستعمل بياناتك. ما تفعله الآن يُحفظ حين ينتهي.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::TabPlayback</name>
    <message>
        <source>A port is a number from 1 to 65,535.</source>
        <translation>المنفذ رقم من 1 إلى 65,535.</translation>
    </message>
    <message>
        <source>The browser has no tab that may be read.</source>
        <translation>ليس في المتصفّح لسان يجوز أن يُقرأ.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::TargetNotice</name>
    <message>
        <source>Target reached</source>
        <translation>بلغتَ الهدف</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Count on</source>
        <translation>واصل العدّ</translation>
    </message>
</context>
<context>
    <name>Velvetnook::TimerAlarm</name>
    <message>
        <source>Take a break</source>
        <translation>خذ استراحة</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>البدء من جديد</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>استراحة</translation>
    </message>
    <message>
        <source>%1 finished.</source>
        <translation>انتهى: %1</translation>
    </message>
</context>
<context>
    <name>Velvetnook::TimersViewModel</name>
    <message>
        <source>Running since %1</source>
        <translation>يعمل منذ %1</translation>
    </message>
    <message>
        <source>Paused at %1</source>
        <translation>متوقف عند %1</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>لم يبدأ</translation>
    </message>
    <message>
        <source>Finished at %1</source>
        <translation>انتهى في %1</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>انتهى</translation>
    </message>
    <message>
        <source>Drink water · in %1</source>
        <translation>اشرب ماء · بعد %1</translation>
    </message>
    <message>
        <source>%1 · running</source>
        <translation>%1 · يعمل</translation>
    </message>
    <message>
        <source>not started</source>
        <translation>لم يبدأ</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>متوقف</translation>
    </message>
    <message>
        <source>finished %1</source>
        <translation>انتهى %1</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>انتهى</translation>
    </message>
    <message>
        <source>since %1</source>
        <translation>منذ %1</translation>
    </message>
    <message>
        <source>ends %1</source>
        <translation>ينتهي %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>البدء من جديد</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
    <message>
        <source>Break %1</source>
        <translation>استراحة %1</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>تركيز</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>مؤقّت</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>ساعة إيقاف</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>ماء</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>استراحة</translation>
    </message>
    <message>
        <source>Choose between 1 minute and 365 days.</source>
        <translation>اختر بين دقيقة واحدة و٣٦٥ يومًا.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::ToolSettings</name>
    <message>
        <source>Starred tools have a tab in the panel’s header, up to eight.</source>
        <translation>للأدوات ذات النجمة لسان في ترويسة اللوحة، حتى ثمانية.</translation>
    </message>
</context>
<context>
    <name>Velvetnook::UnitsViewModel</name>
    <message>
        <source>Length</source>
        <translation>الطول</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>الكتلة</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>الحرارة</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>المساحة</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>البيانات</translation>
    </message>
</context>
<context>
    <name>Velvetnook::UpdateSettings</name>
    <message>
        <source>Stable build</source>
        <translation>إصدار مستقر</translation>
    </message>
    <message>
        <source>Release candidate</source>
        <translation>إصدار مرشّح</translation>
    </message>
    <message>
        <source>Development build</source>
        <translation>إصدار للتطوير</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>يجري السؤال…</translation>
    </message>
    <message>
        <source>Nobody was asked yet.</source>
        <translation>لم يُسأل أحد بعد.</translation>
    </message>
    <message>
        <source>Nobody is asked until you allow it.</source>
        <translation>لا يُسأل أحد حتى تأذن.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a date and a time</comment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Asked: %1</source>
        <translation>سُئل: %1</translation>
    </message>
    <message>
        <source>Nothing newer was there: %1</source>
        <translation>لم يكن ما هو أحدث: %1</translation>
    </message>
</context>
<context>
    <name>Velvetnook::WeatherPlaces</name>
    <message>
        <source>No city is called “%1”</source>
        <translation>لا مدينة اسمها «%1»</translation>
    </message>
    <message>
        <source>the place of the prayer times</source>
        <translation>مكان أوقات الصلاة</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>Velvetnook::WeatherViewModel</name>
    <message>
        <source>The forecast comes over the network.</source>
        <translation>تأتي التوقّعات عبر الشبكة.</translation>
    </message>
    <message>
        <source>MET Norway is asked for it while you look. It is told where, to about a kilometre, and nothing else.</source>
        <translation>تُسأل عنها MET Norway ما دمت تنظر. تُعطى المكان بدقّة كيلومتر تقريبًا ولا شيء غيره.</translation>
    </message>
    <message>
        <source>Refresh returns at %1.</source>
        <translation>يعود التحديث عند %1.</translation>
    </message>
    <message>
        <source>Here</source>
        <comment>the place of the prayer times</comment>
        <translation>هنا</translation>
    </message>
    <message>
        <source>Forecast updated %1</source>
        <translation>حُدّثت التوقّعات %1</translation>
    </message>
    <message>
        <source>Previous forecast · %1</source>
        <translation>توقّعات سابقة · %1</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1، %2، %3</translation>
    </message>
</context>
<context>
    <name>WeatherDays</name>
    <message>
        <source>%1: %2, %3 to %4</source>
        <translation>%1: %2، من %3 إلى %4</translation>
    </message>
</context>
<context>
    <name>WeatherForecast</name>
    <message>
        <source>Choose another place</source>
        <translation>اختر مكانًا آخر</translation>
    </message>
    <message>
        <source>The next hours</source>
        <translation>الساعات القادمة</translation>
    </message>
    <message>
        <source>The next days</source>
        <translation>الأيام القادمة</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>مطر</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>رياح</translation>
    </message>
    <message>
        <source>Humidity</source>
        <translation>الرطوبة</translation>
    </message>
</context>
<context>
    <name>WeatherHours</name>
    <message>
        <source>The next hours: %1</source>
        <translation>الساعات القادمة: %1</translation>
    </message>
</context>
<context>
    <name>WeatherPlacePage</name>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Place of the weather</source>
        <translation>مكان الطقس</translation>
    </message>
    <message>
        <source>As the prayer times: %1</source>
        <translation>كأوقات الصلاة: %1</translation>
    </message>
    <message>
        <source>City</source>
        <translation>مدينة</translation>
    </message>
    <message>
        <source>Ask MET Norway for the forecast</source>
        <translation>طلب التوقّعات من MET Norway</translation>
    </message>
    <message>
        <source>While you look, over the network. It is told where, to about a kilometre, and nothing else.</source>
        <translation>ما دمت تنظر، عبر الشبكة. تُعطى المكان بدقّة كيلومتر تقريبًا ولا شيء غيره.</translation>
    </message>
</context>
<context>
    <name>WeatherTile</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>WeatherView</name>
    <message>
        <source>Weather</source>
        <translation>الطقس</translation>
    </message>
    <message>
        <source>Choose a city</source>
        <translation>اختر مدينة</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>السماح</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>حاول من جديد</translation>
    </message>
    <message>
        <source>Another place…</source>
        <translation>مكان آخر…</translation>
    </message>
    <message>
        <source>Data from MET Norway</source>
        <translation>البيانات من MET Norway</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
</context>
<context>
    <name>WeatherWords</name>
    <message>
        <source>%1 km/h</source>
        <translation>%1 كم/س</translation>
    </message>
    <message>
        <source>Wind unavailable</source>
        <translation>الرياح غير متاحة</translation>
    </message>
    <message>
        <source>%1 mm next hour</source>
        <translation>%1 مم في الساعة القادمة</translation>
    </message>
    <message>
        <source>Rain unavailable</source>
        <translation>المطر غير متاح</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1٪</translation>
    </message>
    <message>
        <source>Humidity unavailable</source>
        <translation>الرطوبة غير متاحة</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
</context>
<context>
    <name>Windows</name>
    <message>
        <source>Velvetnook Settings</source>
        <translation>إعدادات Velvetnook</translation>
    </message>
    <message>
        <source>Welcome to Velvetnook</source>
        <translation>أهلًا بك في Velvetnook</translation>
    </message>
</context>
<context>
    <name>Workspaces</name>
    <message>
        <source>Faith</source>
        <translation>الإيمان</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>التركيز</translation>
    </message>
    <message>
        <source>Coding</source>
        <translation>البرمجة</translation>
    </message>
</context>
</TS>
