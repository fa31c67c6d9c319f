<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>headunit::CallView</name>
    <message>
        <source>Mute</source>
        <translation>كتم</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>انتظار</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>الأرقام</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>جارٍ الاتصال…</translation>
    </message>
    <message>
        <source>On hold, %1</source>
        <translation>قيد الانتظار، %1</translation>
    </message>
    <message>
        <source>Connected, %1</source>
        <translation>متصل، %1</translation>
    </message>
</context>
<context>
    <name>headunit::ClickSound</name>
    <message>
        <source>There is nothing to play sound with here: keys are pressed without a click.</source>
        <translation>لا يوجد مخرج صوت هنا: تعمل الأزرار بلا نقرة.</translation>
    </message>
</context>
<context>
    <name>headunit::Contacts</name>
    <message>
        <source>%1 has no contacts.</source>
        <translation>لا توجد جهات اتصال في &#x2066;%1&#x2069;.</translation>
    </message>
    <message>
        <source>Cards of %1 that make no sense and are left out: %2. The first is in line %3.</source>
        <translation>بطاقات غير مفهومة في &#x2066;%1&#x2069; تم تجاوزها: %2. أولها في السطر %3.</translation>
    </message>
    <message>
        <source>%1 is too long: only the first %2 contacts are taken.</source>
        <translation>&#x2066;%1&#x2069; أطول من اللازم: تؤخذ أول %2 من جهات الاتصال فقط.</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>جوال</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>منزل</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>عمل</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>هاتف</translation>
    </message>
</context>
<context>
    <name>headunit::Favourites</name>
    <message>
        <source>Nobody is a favourite yet. Mark people in the telephone book.</source>
        <translation>لا توجد مفضلة بعد. حدد أشخاصًا في دفتر الهاتف.</translation>
    </message>
</context>
<context>
    <name>headunit::Files</name>
    <message>
        <source>There is no file %1.</source>
        <translation>لا يوجد ملف &#x2066;%1&#x2069;.</translation>
    </message>
    <message>
        <source>%1 is a folder and not a file.</source>
        <translation>&#x2066;%1&#x2069; مجلد وليس ملفًا.</translation>
    </message>
    <message>
        <source>%1 is no ordinary file.</source>
        <translation>&#x2066;%1&#x2069; ليس ملفًا عاديًا.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>تتعذر قراءة &#x2066;%1&#x2069;.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>&#x2066;%1&#x2069; فارغ.</translation>
    </message>
</context>
<context>
    <name>headunit::HeadUnit</name>
    <message>
        <source>Music</source>
        <translation>الموسيقى</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>المشغل</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>الراديو</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>جهات الاتصال</translation>
    </message>
</context>
<context>
    <name>headunit::HomePage</name>
    <message>
        <source>Home</source>
        <translation>الرئيسية</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>الراديو</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>الوسائط</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>الهاتف</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>الملاحة</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>الكاميرا</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>الطقس</translation>
    </message>
    <message>
        <source>Not available in this car.</source>
        <translation>غير متوفر في هذه السيارة.</translation>
    </message>
    <message>
        <source>Nothing is playing</source>
        <translation>لا شيء قيد التشغيل</translation>
    </message>
    <message>
        <source>Choose a track in Media</source>
        <translation>اختر مقطعًا من الوسائط</translation>
    </message>
</context>
<context>
    <name>headunit::Keypad</name>
    <message>
        <source>Enter a number</source>
        <translation>أدخل رقمًا</translation>
    </message>
    <message>
        <source>No recent numbers</source>
        <translation>لا مكالمات أخيرة</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>الأخيرة</translation>
    </message>
</context>
<context>
    <name>headunit::Library</name>
    <message>
        <source>Folders</source>
        <translation>المجلدات</translation>
    </message>
    <message>
        <source>All tracks</source>
        <translation>كل المقاطع</translation>
    </message>
    <message>
        <source>Tracks: %L1</source>
        <translation>المقاطع: %L1</translation>
    </message>
    <message>
        <source>Reading tags: %L1 of %L2</source>
        <translation>قراءة البيانات: %L1 من %L2</translation>
    </message>
</context>
<context>
    <name>headunit::LibraryScan</name>
    <message>
        <source>There is no folder %1.</source>
        <translation>لا يوجد مجلد &#x2066;%1&#x2069;.</translation>
    </message>
    <message>
        <source>%1 is a file and not a folder with music.</source>
        <translation>&#x2066;%1&#x2069; ملف وليس مجلد موسيقى.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read.</source>
        <translation>تتعذر قراءة المجلد &#x2066;%1&#x2069;.</translation>
    </message>
    <message>
        <source>Files that cannot be read as music: %1. The first is %2.</source>
        <translation>ملفات تتعذر قراءتها كموسيقى: %1. أولها &#x2066;%2&#x2069;.</translation>
    </message>
    <message>
        <source>There is too much music in %1: only the first %2 files are shown.</source>
        <translation>الموسيقى في &#x2066;%1&#x2069; أكثر من اللازم: تظهر أول %2 من الملفات فقط.</translation>
    </message>
    <message>
        <source>Folders that cannot be read: %1. The first is %2.</source>
        <translation>مجلدات تتعذر قراءتها: %1. أولها &#x2066;%2&#x2069;.</translation>
    </message>
    <message>
        <source>There is no music in %1.</source>
        <translation>لا توجد موسيقى في &#x2066;%1&#x2069;.</translation>
    </message>
</context>
<context>
    <name>headunit::MediaPage</name>
    <message>
        <source>Media</source>
        <translation>الوسائط</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>المقاطع</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>المجلدات</translation>
    </message>
</context>
<context>
    <name>headunit::NowPlaying</name>
    <message>
        <source>Nothing is playing</source>
        <translation>لا شيء قيد التشغيل</translation>
    </message>
    <message>
        <source>Choose a track or a folder</source>
        <translation>اختر مقطعًا أو مجلدًا</translation>
    </message>
</context>
<context>
    <name>headunit::PhonePage</name>
    <message>
        <source>Phone</source>
        <translation>الهاتف</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>الأسماء</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>المفضلة</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>الأرقام</translation>
    </message>
</context>
<context>
    <name>headunit::Player</name>
    <message>
        <source>There is no music to play.</source>
        <translation>لا توجد موسيقى للتشغيل.</translation>
    </message>
    <message>
        <source>No audio output was found: the music plays on without sound.</source>
        <translation>لم يُعثر على مخرج صوت: تستمر الموسيقى دون صوت.</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>لا يمكن تشغيل &#x2068;%1&#x2069;.</translation>
    </message>
</context>
<context>
    <name>headunit::Popup</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>headunit::RadioPage</name>
    <message>
        <source>Radio</source>
        <translation>الراديو</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>المقياس</translation>
    </message>
    <message>
        <source>No station</source>
        <translation>لا توجد محطة</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>فارغ</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>تم الحفظ</translation>
    </message>
</context>
<context>
    <name>headunit::SettingsAbout</name>
    <message>
        <source>Version %1, with Qt %2</source>
        <translation>الإصدار %1 مع Qt %2</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>الترخيص</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
</context>
<context>
    <name>headunit::SettingsDisplay</name>
    <message>
        <source>Brightness</source>
        <translation>السطوع</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>نهار</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>ليل</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>headunit::SettingsGeneral</name>
    <message>
        <source>24-hour clock</source>
        <translation>ساعة بنظام 24</translation>
    </message>
    <message>
        <source>In the bar above every page</source>
        <translation>في الشريط أعلى كل صفحة</translation>
    </message>
    <message>
        <source>Date beside the clock</source>
        <translation>التاريخ بجانب الساعة</translation>
    </message>
    <message>
        <source>Day and month</source>
        <translation>اليوم والشهر</translation>
    </message>
    <message>
        <source>Key clicks</source>
        <translation>نقرات الأزرار</translation>
    </message>
    <message>
        <source>A click for each touch</source>
        <translation>نقرة عند كل لمسة</translation>
    </message>
    <message>
        <source>Calls pause the music</source>
        <translation>المكالمات توقف الموسيقى</translation>
    </message>
    <message>
        <source>It goes on when you hang up</source>
        <translation>وتستمر بعد إنهاء المكالمة</translation>
    </message>
    <message>
        <source>Speed warning</source>
        <translation>تنبيه السرعة</translation>
    </message>
    <message>
        <source>When the car is faster than the limit</source>
        <translation>عند تجاوز حد السرعة</translation>
    </message>
    <message>
        <source>Lock doors while driving</source>
        <translation>قفل الأبواب أثناء القيادة</translation>
    </message>
    <message>
        <source>They open again when the car is parked</source>
        <translation>وتفتح عند الوقوف</translation>
    </message>
    <message>
        <source>Wipers start in the rain</source>
        <translation>المساحات تعمل عند المطر</translation>
    </message>
    <message>
        <source>As fast as it rains</source>
        <translation>بسرعة تناسب المطر</translation>
    </message>
    <message>
        <source>Fold mirrors</source>
        <translation>طي المرايا</translation>
    </message>
    <message>
        <source>When the car is locked</source>
        <translation>عند قفل السيارة</translation>
    </message>
    <message>
        <source>Lights to the door</source>
        <translation>إضاءة حتى الباب</translation>
    </message>
    <message>
        <source>Half a minute of light after parking</source>
        <translation>نصف دقيقة من الضوء بعد الوقوف</translation>
    </message>
    <message>
        <source>Easy entry</source>
        <translation>سهولة الدخول</translation>
    </message>
    <message>
        <source>The seat makes room when a door opens</source>
        <translation>يتراجع المقعد عند فتح الباب</translation>
    </message>
    <message>
        <source>Drowsiness alert</source>
        <translation>تنبيه النعاس</translation>
    </message>
    <message>
        <source>Suggests a break on long drives</source>
        <translation>يقترح استراحة في الرحلات الطويلة</translation>
    </message>
</context>
<context>
    <name>headunit::SettingsLanguage</name>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Changes texts, numbers and times</source>
        <translation>تغيّر النصوص والأرقام والأوقات</translation>
    </message>
</context>
<context>
    <name>headunit::SettingsPage</name>
    <message>
        <source>Update</source>
        <translation>التحديث</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
</context>
<context>
    <name>headunit::SettingsUpdate</name>
    <message>
        <source>Software update</source>
        <translation>تحديث البرنامج</translation>
    </message>
    <message>
        <source>Installed: version %1</source>
        <translation>المثبت: الإصدار %1</translation>
    </message>
    <message>
        <source>installing</source>
        <translation>جارٍ التثبيت</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Look for an update</source>
        <translation>البحث عن تحديث</translation>
    </message>
    <message>
        <source>Looking for an update…</source>
        <translation>جارٍ البحث عن تحديث…</translation>
    </message>
    <message>
        <source>The update is being installed. You can go on driving.</source>
        <translation>يجري تثبيت التحديث. يمكنك متابعة القيادة.</translation>
    </message>
    <message>
        <source>The head unit is up to date.</source>
        <translation>النظام محدَّث إلى آخر إصدار.</translation>
    </message>
    <message>
        <source>The update was cancelled. Nothing has changed.</source>
        <translation>أُلغي التحديث. لم يتغير شيء.</translation>
    </message>
    <message>
        <source>An update takes less than a minute.</source>
        <translation>يستغرق التحديث أقل من دقيقة.</translation>
    </message>
    <message>
        <source>done</source>
        <translation>تم</translation>
    </message>
</context>
<context>
    <name>headunit::SoundBalance</name>
    <message>
        <source>Balance</source>
        <translation>التوازن</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>أمام وخلف</translation>
    </message>
    <message>
        <source>Rear</source>
        <translation>خلف</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>أمام</translation>
    </message>
    <message>
        <source>Centre sound</source>
        <translation>توسيط الصوت</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>يسار %1</translation>
    </message>
    <message>
        <source>Right %1</source>
        <translation>يمين %1</translation>
    </message>
    <message>
        <source>Rear %1</source>
        <translation>خلف %1</translation>
    </message>
    <message>
        <source>Front %1</source>
        <translation>أمام %1</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>الوسط</translation>
    </message>
</context>
<context>
    <name>headunit::SoundEffects</name>
    <message>
        <source>Loudness</source>
        <translation>تعزيز الجهارة</translation>
    </message>
    <message>
        <source>Fuller sound when it is quiet</source>
        <translation>صوت أغنى عند خفض المستوى</translation>
    </message>
    <message>
        <source>Surround</source>
        <translation>صوت محيطي</translation>
    </message>
    <message>
        <source>A wider stage for all seats</source>
        <translation>مسرح أوسع لكل المقاعد</translation>
    </message>
    <message>
        <source>Speed-dependent volume</source>
        <translation>الصوت حسب السرعة</translation>
    </message>
    <message>
        <source>Louder as the car goes faster</source>
        <translation>أعلى كلما زادت السرعة</translation>
    </message>
</context>
<context>
    <name>headunit::SoundEqualiser</name>
    <message>
        <source>Bass</source>
        <translation>الجهير</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>المتوسط</translation>
    </message>
    <message>
        <source>Treble</source>
        <translation>الحاد</translation>
    </message>
    <message>
        <source>Subwoofer</source>
        <translation>مضخم الجهير</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>أمام</translation>
    </message>
    <message>
        <source>Rear</source>
        <translation>خلف</translation>
    </message>
</context>
<context>
    <name>headunit::SoundPage</name>
    <message>
        <source>Sound</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>النغمة</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>المستويات</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>التوازن</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>التأثيرات</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>الشدة</translation>
    </message>
</context>
<context>
    <name>headunit::SoundVolume</name>
    <message>
        <source>Muted</source>
        <translation>صامت</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>مستوى الصوت</translation>
    </message>
</context>
<context>
    <name>headunit::Stations</name>
    <message>
        <source>%1 has no stations.</source>
        <translation>لا توجد محطات في &#x2066;%1&#x2069;.</translation>
    </message>
    <message>
        <source>Lines of %1 that make no sense and are left out: %2. The first is line %3.</source>
        <translation>أسطر غير مفهومة في &#x2066;%1&#x2069; تم تجاوزها: %2. أولها السطر %3.</translation>
    </message>
    <message>
        <source>%1 is too long: only the first %2 stations are taken.</source>
        <translation>&#x2066;%1&#x2069; أطول من اللازم: تؤخذ أول %2 من المحطات فقط.</translation>
    </message>
</context>
<context>
    <name>headunit::StatusBar</name>
    <message>
        <source>ddd d MMM</source>
        <extracomment>the date in the status bar, in the letters of Qt&apos;s date formats</extracomment>
        <translation>dddd d MMMM</translation>
    </message>
</context>
<context>
    <name>headunit::TrackRows</name>
    <message>
        <source>Cannot be played</source>
        <translation>لا يمكن تشغيله</translation>
    </message>
</context>
<context>
    <name>headunit::Tuner</name>
    <message>
        <source>MHz</source>
        <translation>MHz</translation>
    </message>
    <message>
        <source>kHz</source>
        <translation>kHz</translation>
    </message>
    <message>
        <source>There is no station to be found on this band.</source>
        <translation>لا توجد محطات على هذا النطاق.</translation>
    </message>
</context>
</TS>
