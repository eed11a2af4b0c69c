<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>لا يوجد تخطيط نشط.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>التخطيط &quot;%1&quot; نشط.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>النقر ينقل إلى التخطيط التالي.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>ال&amp;تخطيط التالي</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>التخطيط ال&amp;سابق</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>ال&amp;اختلافات عن النوافذ الحالية:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;موضع الاختصار:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>الاختلافات عن النوافذ الحالية</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>صورة &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>لا شيء. النوافذ مطابقة لهذا التخطيط.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::FileEntries</name>
    <message>
        <source>Writes all layouts to a file</source>
        <translation>كتابة كل التخطيطات في ملف</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>استبدال كل التخطيطات بتخطيطات من ملف</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>إضافة تخطيطات من ملف لتحل محل التخطيطات التي لها الاسم نفسه</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;مجموعة</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>تخطيطك بالاسم نفسه:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>استيراد تخطيطات</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>ال&amp;تخطيطات في &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>تخطيطات الملف</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>في الملف:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>ال&amp;احتفاظ بكليهما</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>ا&amp;ستبدال تخطيطك</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>ت&amp;خطي</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>تحديد ال&amp;كل</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;إلغاء تحديد الكل</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>است&amp;يراد</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>صورة &quot;%1&quot; في الملف</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>صورة &quot;%1&quot; الخاص بك</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>الاسم مستخدم:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>يحل محل تخطيطك بهذا الاسم</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>يضاف باسم &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>يضاف</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>موجود لديك بالفعل</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>لا يتم استيراده، الاسم مستخدم</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>لا يتم استيراده</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>التخطيطات الموجودة في %1 تخص إصدارًا آخر من هذا البرنامج. ستبقى كما هي.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>الملف تالف.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>بعض التخطيطات الموجودة في %1 تالفة وتم تجاهلها.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>الملف يخص إصدارًا آخر من هذا البرنامج أو أنه تالف.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>تعذر حفظ التخطيطات في %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>تتعذر قراءة ملف تخطيطاتك %1. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>تم الاحتفاظ بالملف باسم %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>سيبقى الملف كما هو، ولن تُحفظ التخطيطات حتى إغلاق البرنامج.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>&amp;إدارة التخطيطات...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>إعادة تسمية &quot;%1&quot; إلى &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>حذف &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>حذف تخطيطات</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>تكرار &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>تكرار تخطيطات</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>نقل &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>نقل تخطيطات</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>استيراد &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>تم الاستيراد من &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>تم التصدير إلى &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>التخطيطات</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;تنشيط</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;إعادة تسمية</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>ت&amp;كرار</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;حذف</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;نقل لأعلى</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>نقل &amp;لأسفل</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>ت&amp;صدير...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>ن&amp;قل إلى مجموعة</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>ا&amp;ستيراد...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>ترتيب النوافذ كما في التخطيط المختار</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>الموضع %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>معدّل</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>نشط</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>لا توجد تخطيطات بعد. احفظ تخطيطًا من القائمة &quot;التخطيطات&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;قفل التخطيط</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>لا يمكن نقل أي شيء أو فصله أو إغلاقه عن طريق الخطأ</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>حفظ التخطيط</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>حفظ &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>الرجوع إلى التخطيط</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>الرجوع إلى &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>والمزيد</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>اسم التخطيط</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>اكتب اسمًا جديدًا ثم اضغط Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>اسم التخطيط الجديد</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>يحتاج التخطيط إلى اسم: اكتب اسمًا ثم اضغط Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;استخدام الاختصارات</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>من %1 إلى %2 للانتقال إلى التخطيطات المخصصة لهذه المفاتيح</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>الموضع %1 فارغ</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; ليس ملفًا.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>تتعذر الكتابة في &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>تم تصدير التخطيطات إلى &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>لا يحتوي الملف على تخطيطات</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>لم يتم استيراد &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>لا يحتوي &quot;%1&quot; على تخطيطات لهذا البرنامج.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>تتعذر قراءة &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>تم استيراد التخطيطات من &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>تم استيراد التخطيطات من &quot;%1&quot;؛ وتم تجاهل الأجزاء التالفة.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>top</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(بدون اسم)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 لم يعد لسانًا</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>اللسان %1 في المقدمة الآن</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 الآن لسان بجانب %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>تغير موضع %1 على سطح المكتب</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 الآن نافذة مستقلة</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 لم يعد نافذة مستقلة</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 الآن بجانب العناصر المجاورة</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 الآن فوق العناصر المجاورة أو تحتها</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>تغير مكان %1 بين العناصر المجاورة</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>تم نقل %1 من السطر %2 إلى السطر %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>تمت إضافة %1</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>تمت إزالة %1</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>تم نقل %1 من %2 إلى %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 مفتوح</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 مغلق</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>تغير حجم %1 من %2 إلى %3</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::DifferencesNow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::History</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>إعادة تسمية &quot;%1&quot; إلى &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>جديد &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>حذف &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>حفظ &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>إعادة ترتيب التخطيطات</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>الانتقال إلى &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>الانتقال إلى المجموعة &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>الرجوع إلى &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>تغيير التخطيطات</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>استيراد &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>لا يمكن استيراد أي شيء من &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>تالف ولذلك تم تجاهله: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>دون أجزائه التالفة: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>من مجموعات غير موجودة في هذا البرنامج ولذلك تم تجاهله: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>لا يمكن وجود &quot;%1&quot; هنا في &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; ليس العنصر الجذر &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; مفقود في &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>تنقص &quot;%2&quot; السمة &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>يحتوي &quot;%2&quot; على السمة غير المعروفة &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>لا يمكن أن تكون قيمة &quot;Active&quot; هي &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>لا يمكن وجود نص في &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>عدد أرقام الحالة في &quot;%1&quot; ليس زوجيًا</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>يحتاج التخطيط إلى اسم.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>لا يمكن أن يحتوي الاسم على أحرف تحكم.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>يوجد تخطيط بهذا الاسم بالفعل.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>الملف أكبر من الحد المسموح به %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>هذا ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>الملف فارغ</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>لا توجد تخطيطات في الملف</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>ليس للوحة الإرساء &quot;%1&quot; اسم كائن.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>لعدة لوحات إرساء اسم الكائن &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>ليس لشريط الأدوات &quot;%1&quot; اسم كائن.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>لعدة أشرطة أدوات اسم الكائن &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>لوحة الإرساء &quot;%1&quot; ليست في أي من مناطق النافذة.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>ليس للنافذة &quot;%1&quot; عنصر مركزي.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>ال&amp;تخطيطات</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>التخطيطات</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>توجد لوحات إرساء على جانب غير موجود</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>الحالة تالفة</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>تداخل لوحات الإرساء عميق جدًا</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>تصف الحالة أكثر مما يمكن أن تحتويه نافذة</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>المستند تالف: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>المستند ليس مستند تخطيطات: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>للمستند الإصدار غير المعروف &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>هذه ليست حالة نافذة</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>يوجد تخطيط بدون اسم</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>لعدة تخطيطات الاسم &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>توجد لوحة إرساء أو شريط أدوات بدون اسم</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>لعدة لوحات إرساء أو أشرطة أدوات الاسم &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>أدى الدمج إلى تكرار لوحات إرساء أو أشرطة أدوات</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>توجد لوحات إرساء عائمة على شكل ألسنة؛ دمج هذه الحالة يفقدها أشرطة أدواتها</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>توجد أشرطة أدوات على جانب غير موجود</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>تراجع: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>إعادة: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>إظهار الزر في شريط أدوات</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>التخطيطات</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>لا يوجد أمر &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>لا يوجد أمر &quot;%1&quot;؛ راجع &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>البايت %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>المستند</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>سليم</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>عدم إخراج أي شيء.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>الإخراج بصيغة JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>لا توجد مجموعة &quot;%1&quot;؛ الموجود: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>لا يوجد تخطيط &quot;%1&quot;؛ الموجود: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>لا توجد نافذة &quot;%1&quot;؛ الموجود: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>لا يمكن استخدام --view و --current معًا</translation>
    </message>
    <message>
        <source>none</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>هذه المجموعة فقط.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>هذا التخطيط فقط.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>التخطيط الحالي لمجموعة فقط.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>هذه النافذة فقط؛ وفي ملف إعدادات، الحالة الموجودة في SECTION/KEY.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>لا يحتوي على مجموعات ولا على تخطيطات لها أسماء</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>حالة نافذة واحدة ليس لها معرف</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>عرض هذه المساعدة.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>عرض الإصدار.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>ينقص ملف</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>عدد الملفات كبير جدًا</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>ذُكر %1 أكثر من مرة</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>ينقص الخيار %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1؛ راجع &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>التحقق من إمكانية تطبيق تخطيطات الملفات على النوافذ بدون ضرر.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>عرض محتوى تخطيطات ملف.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>عرض الاختلافات بين التخطيطات.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>رسم تخطيط كصورة PNG أو SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>حذف ما كرره الدمج والتخطيطات التي ليس لها اسم.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>نسخ تخطيطات من مستند إلى آخر.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>إعادة تسمية تخطيط، أو نافذة في كل التخطيطات.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>نقل تخطيط إلى مكان آخر في مجموعته.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>إزالة تخطيطات من مستند.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>الاستخدام: panorel COMMAND ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help COMMAND&quot; يعرض طريقة استخدام أمر. FILE هو مستند تخطيطات أو حالة نافذة واحدة أو ملف إعدادات يحتوي على مثل هذه الحالات؛ &quot;-&quot; هو الدخل القياسي.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>تشغيل برنامج Qt 5 مع قائمة لتخطيطات نوافذه.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>جعل سطح المكتب يشغّل برنامجًا عبر &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>تتعذر الكتابة إلى الخرج القياسي</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>يحتوي على عدة تخطيطات؛ اختر واحدًا باستخدام --group و --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>في %1 فقط: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>لا توجد اختلافات</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>الإخراج بصيغة JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>مقارنة تخطيط --view بهذا التخطيط، من الملف نفسه إذا لم يوجد B.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>لا يوجد ما تمكن المقارنة به</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>الملف المراد كتابته؛ &quot;-&quot; هو الخرج القياسي.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>الخرج</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>مجموعة التخطيط.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>التخطيط.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>ينقص الخيار %1؛ الموجود: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>استبدال التخطيطات التي أسماؤها موجودة بالفعل.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>نسخ التخطيطات باسم آخر إذا كان اسمها موجودًا بالفعل.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>لا يمكن استخدام --replace و --keep-both معًا</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>النافذة المراد إعادة تسميتها في كل التخطيطات.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>الاسم الجديد.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>تعاد تسمية النافذة في كل التخطيطات</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>التخطيط المراد النقل إلى ما قبله.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>تخطيط آخر</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>النقل إلى ما بعد كل التخطيطات الأخرى.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>يلزم استخدام --before أو --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>يحتاج --%1 إلى رقم</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>لا يحتوي على أي تخطيط</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(بدون اسم)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(التخطيط الحالي)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(أشرطة الأدوات)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>قراءة ملفات لا يتجاوز حجمها هذا الحد بوحدة MiB، وهو %1 إذا لم يُحدد؛ 0 يلغي الحد.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>ليس مستند تخطيطات</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>يُعاد كتابته بالكامل بسبب نوع المستند أو الترميز</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>تالف</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1: تالف</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>تتعذر قراءته</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>لا يوجد مشغّل كهذا</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>لا يشغّل أي برنامج</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>يشغّل برنامجًا له نسخة Qt خاصة به لا تحمّل الإضافات</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>مشغّل أنشأته بنفسك ويبقى كما هو</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>ترك أشرطة الأدوات كما هي عند تبديل التخطيط.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>إزالة المشغّل مرة أخرى.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>تخطيط النوافذ</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>يحتاج --size إلى عرض وارتفاع لا يتجاوزان %1 بكسل، مثل 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>الصورة كبيرة جدًا؛ اختر نافذة واحدة باستخدام --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>الصورة كبيرة جدًا</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>الصورة المراد كتابتها: SVG إذا انتهى الاسم بـ &quot;.svg&quot;، وإلا PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>الخرج</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>حجم كل نافذة بالبكسل؛ إذا لم يُحدد فحجمها الأصلي بعرض لا يتجاوز %1.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>WxH</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>الرسم بألوان داكنة.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>لا يحتوي على حالة نافذة</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>يتعذر تشغيله</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>ترك أشرطة الأدوات كما هي عند تبديل التخطيط.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>عرض البرامج التي لها تخطيطات دون تشغيل أي منها.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>لا يقبل --list برنامجًا</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>ينقص برنامج</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>الإضافة غير مثبتة (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>النافذة &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>بيانات المستخدم: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>المجموعة &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>التخطيط &quot;%1&quot; (نشط)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>التخطيط &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>التخطيط الحالي</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>أشرطة الأدوات عند الكتابة</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>الإخراج بصيغة JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>top</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>أسفل</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(بدون اسم)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>عند %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(في المقدمة)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>الألسنة:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>يسار:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>يمين:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>أعلى:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>أسفل:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>على جانب غير موجود:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>عائمة:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>مغلقة:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(عائم)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(مخفي)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>أشرطة الأدوات، %1، السطر %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>ليست حالة نافذة، أو أنها تالفة (الحجم: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>المنطقة المركزية: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>لا توجد لوحات إرساء ولا أشرطة أدوات</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>غير سليم؛ راجع &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>تم حذف %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>لا تُكتب حالة فوق ملف إعداداتها</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>الكتابة في هذا الملف بدلًا من الخرج القياسي.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>الخرج</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>الاحتفاظ بالتخطيطات التي ليس لها اسم.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>حذف الحالات غير السليمة مع الإبلاغ عن ذلك.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>الحالة الموجودة في SECTION/KEY من ملف إعدادات.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>الخيار --window مخصص لملفات الإعدادات</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>يحتوي على عدة حالات؛ اختر واحدة باستخدام --window</translation>
    </message>
</context>
</TS>
