<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Quillon</name>
    <message>
        <source>Unknown...</source>
        <translation>غير معروف...</translation>
    </message>
    <message>
        <source>Another program is using the file.</source>
        <translation>يستخدم برنامج آخر هذا الملف.</translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation>لم تبق مساحة على القرص.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>تعذّرت القراءة من القرص أو الكتابة عليه.</translation>
    </message>
    <message>
        <source>Rules and history could not be saved. They are kept while Quillon runs. %@</source>
        <translation>تعذّر حفظ القواعد والتأريخ. ستبقى محفوظة ما دام Quillon يعمل. ⁨%@⁩</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>The records were written by a newer version of Quillon</source>
        <translation>كُتبت المدخلات بإصدارة أحدث من Quillon</translation>
    </message>
    <message>
        <source>They are left untouched; please install that version again to use them: %@</source>
        <translation>لن تُمس المدخلات؛ لاستخدامها يُرجى تثبيت تلك الإصدارة من جديد: ⁨%@⁩</translation>
    </message>
    <message>
        <source>The records cannot be opened</source>
        <translation>لا يمكن فتح المدخلات</translation>
    </message>
    <message>
        <source>%@

Rules and history are in this file, which is left as it is: %@</source>
        <translation>⁨%@⁩

توجد القواعد والتأريخ في هذا الملف الذي يبقى كما هو: ⁨%@⁩</translation>
    </message>
    <message>
        <source>Settings are damaged</source>
        <translation>الإعدادات معطوبة</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file was left as it was: %@</source>
        <translation>يتابع Quillon بما يعرفه أو بقيمه المبدئية. تُرك الملف المعطوب كما كان: ⁨%@⁩</translation>
    </message>
    <message>
        <source>Settings were damaged</source>
        <translation>كانت الإعدادات معطوبة</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file is kept: %@</source>
        <translation>يتابع Quillon بما يعرفه أو بقيمه المبدئية. احتُفظ بالملف المعطوب: ⁨%@⁩</translation>
    </message>
    <message>
        <source>Settings cannot be read</source>
        <translation>لا يمكن قراءة الإعدادات</translation>
    </message>
    <message>
        <source>Quillon uses its defaults and leaves the file alone: %@</source>
        <translation>يستخدم Quillon قيمه المبدئية ولا يمس الملف: ⁨%@⁩</translation>
    </message>
    <message>
        <source>Settings cannot be saved</source>
        <translation>لا يمكن حفظ الإعدادات</translation>
    </message>
    <message>
        <source>Changes last until Quillon quits. Please check the permissions of %@</source>
        <translation>تسري التغييرات حتى إنهاء Quillon. يُرجى التحقق من أذونات ⁨%@⁩</translation>
    </message>
    <message>
        <source>There is no room left on the disk. Changes last until Quillon quits: %@</source>
        <translation>لم تبق مساحة على القرص. تسري التغييرات حتى إنهاء Quillon: ⁨%@⁩</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>تعذّر حفظ التغييرات أثناء الإنهاء. هل تريد الإنهاء مع ذلك؟</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>سيؤدي الإنهاء الآن إلى فقدان كل التغييرات منذ آخر حفظ ناجح</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>إنهاء مع ذلك</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>The account holds changes by a newer version of Quillon. Update it here to get them.</source>
        <translation>يحوي الحساب تغييرات من إصدارة أحدث من Quillon. حدّثه هنا للحصول عليها.</translation>
    </message>
    <message>
        <source>A file in the account is damaged, or somebody has changed it. It is left alone.</source>
        <translation>ملف في الحساب معطوب أو غيّره أحد. سيُترك كما هو.</translation>
    </message>
    <message>
        <source>The password of the account is not in the keyring. Sign in again.</source>
        <translation>كلمة سر الحساب ليست في حلقة المفاتيح. سجّل الدخول من جديد.</translation>
    </message>
    <message>
        <source>What is to be synced could not be stored on this computer.</source>
        <translation>تعذّر على هذا الحاسوب تخزين ما ستجري مزامنته.</translation>
    </message>
    <message>
        <source>This account is new. Repeat the passphrase.</source>
        <translation>هذا الحساب جديد. كرّر عبارة السر.</translation>
    </message>
    <message>
        <source>The two passphrases differ.</source>
        <translation>عبارتا السر مختلفتان.</translation>
    </message>
    <message>
        <source>The passphrase is too short: it needs at least eight characters.</source>
        <translation>عبارة السر قصيرة جدًا: تحتاج إلى ثمانية محارف على الأقل.</translation>
    </message>
    <message>
        <source>The account has another passphrase.</source>
        <translation>للحساب عبارة سر أخرى.</translation>
    </message>
    <message>
        <source>The account&apos;s key file is damaged. Put back an older copy of it.</source>
        <translation>ملف مفتاح الحساب معطوب. أعد نسخة أقدم منه.</translation>
    </message>
    <message>
        <source>The account was made by a newer version of Quillon.</source>
        <translation>أنشأت الحساب إصدارة أحدث من Quillon.</translation>
    </message>
    <message>
        <source>The account&apos;s key file is missing. A computer that is signed in puts it back when it syncs next.</source>
        <translation>ملف مفتاح الحساب مفقود. سيعيده حاسوب مسجّل الدخول عند مزامنته التالية.</translation>
    </message>
    <message>
        <source>This computer has not enough free memory for that now.</source>
        <translation>لا تكفي الذاكرة الحرة في هذا الحاسوب لذلك الآن.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>اختر مجلدًا.</translation>
    </message>
    <message>
        <source>Enter the server&apos;s address.</source>
        <translation>أدخل عنوان الخادوم.</translation>
    </message>
    <message>
        <source>Enter a user name and a password.</source>
        <translation>أدخل اسم المستخدم وكلمة السر.</translation>
    </message>
    <message>
        <source>Enter a passphrase.</source>
        <translation>أدخل عبارة السر.</translation>
    </message>
    <message>
        <source>%@ did not let go of it</source>
        <translation>لم يترك ⁨%@⁩ الواجهة</translation>
    </message>
    <message>
        <source>Only the session in front of this computer may change it</source>
        <translation>لا يمكن تغيير العنوان إلا من جلسة أمام هذا الحاسوب</translation>
    </message>
    <message>
        <source>Please make sure you have installed the HelperTool</source>
        <translation>يُرجى التأكد من تثبيت الأداة المساعدة</translation>
    </message>
    <message>
        <source>%@ gives this network an Address of its own. Look for it in the network&apos;s settings</source>
        <translation>يعطي ⁨%@⁩ هذه الشبكة عنوانًا خاصًا بها. تجده في إعدادات الشبكة</translation>
    </message>
    <message>
        <source>Please make sure your Device is enabled</source>
        <translation>يُرجى التأكد من تفعيل الجهاز</translation>
    </message>
    <message>
        <source>%@ Address Changed</source>
        <translation>⁨%@⁩: تغيّر العنوان</translation>
    </message>
    <message>
        <source>Your new MAC Address is: %@</source>
        <translation>عنوان MAC الجديد: ⁨%@⁩</translation>
    </message>
    <message>
        <source>Please connect it again with the program that connects it</source>
        <translation>يُرجى إعادة توصيلها بالبرنامج الذي يوصلها</translation>
    </message>
    <message>
        <source>Please connect it again with %@</source>
        <translation>يُرجى إعادة توصيلها باستخدام ⁨%@⁩</translation>
    </message>
    <message>
        <source>%@ is not connected again</source>
        <translation>لم تتصل ⁨%@⁩ من جديد</translation>
    </message>
    <message>
        <source>%@ keeps the IP Address of before</source>
        <translation>تحتفظ ⁨%@⁩ بعنوان IP السابق</translation>
    </message>
    <message>
        <source>%@ keeps an IPv6 Address made from the old one</source>
        <translation>تحتفظ ⁨%@⁩ بعنوان IPv6 مشتق من العنوان القديم</translation>
    </message>
    <message>
        <source>%@ Address may be replaced</source>
        <translation>⁨%@⁩: قد يُستبدل العنوان</translation>
    </message>
    <message>
        <source>This session may not control %@. The new Address holds until the interface connects the next time</source>
        <translation>لا يُسمح لهذه الجلسة بالتحكم في ⁨%@⁩. يسري العنوان الجديد حتى الاتصال التالي للواجهة</translation>
    </message>
    <message>
        <source>The new Address and the old Address are identical</source>
        <translation>العنوان الجديد والعنوان القديم متطابقان</translation>
    </message>
    <message>
        <source>%@ Address was replaced</source>
        <translation>⁨%@⁩: استُبدل العنوان</translation>
    </message>
    <message>
        <source>Another program keeps setting an Address of its own. Your rule acts again when you join a network</source>
        <translation>يواصل برنامج آخر ضبط عنوان خاص به. تعمل القاعدة من جديد عند الانضمام إلى شبكة</translation>
    </message>
    <message>
        <source>%@ Address was not Changed</source>
        <translation>⁨%@⁩: لم يتغيّر العنوان</translation>
    </message>
    <message>
        <source>The interface does not say which address it has now.</source>
        <translation>لا تفيد الواجهة بعنوانها الحالي.</translation>
    </message>
    <message>
        <source>Changed: this is the address in use now.</source>
        <translation>تغيّر: هذا هو العنوان المستخدم الآن.</translation>
    </message>
    <message>
        <source>Not changed: %@.</source>
        <translation>لم يتغيّر: ⁨%@⁩.</translation>
    </message>
    <message>
        <source>Not connected again: look at the address when it is.</source>
        <translation>لم تتصل من جديد: يُرجى التحقق من العنوان بعد الاتصال.</translation>
    </message>
    <message>
        <source>Changed, but to another address than you asked for.</source>
        <translation>تغيّر، لكن إلى عنوان غير المطلوب.</translation>
    </message>
    <message>
        <source>The address was not changed.</source>
        <translation>لم يتغيّر العنوان.</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>%@ now has %@ in place of %@.</source>
        <translation>لدى ⁨%@⁩ الآن ⁨%@⁩ بدلًا من ⁨%@⁩.</translation>
    </message>
    <message>
        <source>%@ owns this interface.</source>
        <translation>يدير ⁨%@⁩ هذه الواجهة.</translation>
    </message>
    <message>
        <source>%@ shows another Address</source>
        <translation>تُظهر ⁨%@⁩ عنوانًا آخر</translation>
    </message>
    <message>
        <source>Apply again</source>
        <translation>تطبيق من جديد</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>قبول</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>هذا ليس ملفًا.</translation>
    </message>
    <message>
        <source>Show window</source>
        <translation>إظهار النافذة</translation>
    </message>
    <message>
        <source>Randomize address</source>
        <translation>عنوان عشوائي جديد</translation>
    </message>
    <message>
        <source>Shortcut for “%@” not set</source>
        <translation>لم يُضبط اختصار «⁨%@⁩»</translation>
    </message>
    <message>
        <source>A shortcut needs Ctrl, Alt or Meta and one more key.</source>
        <translation>يحتاج الاختصار إلى Ctrl أو Alt أو Meta ومفتاح آخر.</translation>
    </message>
    <message>
        <source>Another program uses this shortcut.</source>
        <translation>يستخدم برنامج آخر هذا الاختصار.</translation>
    </message>
    <message>
        <source>The desktop refused this shortcut.</source>
        <translation>رفض سطح المكتب هذا الاختصار.</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>لا يوجد مفتاح كهذا في لوحة المفاتيح.</translation>
    </message>
    <message>
        <source>This desktop does not let programs set global shortcuts.</source>
        <translation>لا يتيح سطح المكتب هذا للبرامج ضبط اختصارات عامة.</translation>
    </message>
    <message>
        <source>Quillon requires Location Services to determine your current network details</source>
        <translation>يحتاج Quillon إلى خدمات الموقع لمعرفة تفاصيل الشبكة الحالية</translation>
    </message>
    <message>
        <source>You need to give Quillon access in System Settings &gt; Privacy &amp; Security &gt; Privacy &gt; Location Services</source>
        <translation>يُسمح لـ Quillon بالوصول من هنا: إعدادات النظام &gt; الخصوصية والأمان &gt; الخصوصية &gt; خدمات الموقع</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Random Address</source>
        <translation>عنوان عشوائي</translation>
    </message>
    <message>
        <source>Not currently connected...</source>
        <translation>غير متصل حاليًا...</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>WPA Personal</source>
        <translation>‏WPA شخصي</translation>
    </message>
    <message>
        <source>WPA Personal Mixed</source>
        <translation>‏WPA شخصي مختلط</translation>
    </message>
    <message>
        <source>WPA2 Personal</source>
        <translation>‏WPA2 شخصي</translation>
    </message>
    <message>
        <source>Personal</source>
        <translation>شخصي</translation>
    </message>
    <message>
        <source>Dynamic WEP</source>
        <translation>‏WEP ديناميكي</translation>
    </message>
    <message>
        <source>WPA Enterprise</source>
        <translation>‏WPA مؤسسي</translation>
    </message>
    <message>
        <source>WPA Enterprise Mixed</source>
        <translation>‏WPA مؤسسي مختلط</translation>
    </message>
    <message>
        <source>WPA2 Enterprise</source>
        <translation>‏WPA2 مؤسسي</translation>
    </message>
    <message>
        <source>Enterprise</source>
        <translation>مؤسسي</translation>
    </message>
    <message>
        <source>This account can be used.</source>
        <translation>يمكن استخدام هذا الحساب.</translation>
    </message>
    <message>
        <source>This account can be used. Set it up on one computer after the other: its server does not notice when two write at the same moment.</source>
        <translation>يمكن استخدام هذا الحساب. اضبطه على حاسوب تلو الآخر: لا يلاحظ خادومه إن كتب اثنان في اللحظة نفسها.</translation>
    </message>
    <message>
        <source>The server did not accept this name and password.</source>
        <translation>لم يقبل الخادوم هذا الاسم وكلمة السر.</translation>
    </message>
    <message>
        <source>This folder is not there at the moment.</source>
        <translation>هذا المجلد غير موجود حاليًا.</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>لا يمكن الوصول إلى الخادوم.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted.</source>
        <translation>شهادة الخادوم غير موثوقة.</translation>
    </message>
    <message>
        <source>This folder cannot be written.</source>
        <translation>لا يمكن الكتابة في هذا المجلد.</translation>
    </message>
    <message>
        <source>There is no space left in this folder.</source>
        <translation>لم تبق مساحة في هذا المجلد.</translation>
    </message>
    <message>
        <source>There is no space left in this account.</source>
        <translation>لم تبق مساحة في هذا الحساب.</translation>
    </message>
    <message>
        <source>The account does not take files of this size.</source>
        <translation>لا يقبل الحساب ملفات بهذا الحجم.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>هذا ليس مجلدًا.</translation>
    </message>
    <message>
        <source>The server shows no files at this address. If it asks for a second factor, use an app password.</source>
        <translation>لا يُظهر الخادوم ملفات على هذا العنوان. إن كان يطلب عاملًا ثانيًا فاستخدم كلمة سر للتطبيق.</translation>
    </message>
    <message>
        <source>The account did not work as expected. Try again later.</source>
        <translation>لم يعمل الحساب كما هو متوقع. حاول مرة أخرى لاحقًا.</translation>
    </message>
    <message>
        <source>Starts Quillon when you log in</source>
        <translation>يبدأ Quillon عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>There is no keyring in this session to keep the password in.</source>
        <translation>لا توجد في هذه الجلسة حلقة مفاتيح تُحفظ فيها كلمة السر.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked.</source>
        <translation>لم يُفتح قفل حلقة المفاتيح.</translation>
    </message>
    <message>
        <source>The keyring did not answer.</source>
        <translation>لم تجب حلقة المفاتيح.</translation>
    </message>
    <message>
        <source>Quillon is not in the status bar</source>
        <translation>لا يظهر Quillon في شريط الحالة</translation>
    </message>
    <message>
        <source>This desktop shows no status items. Minimize the window to keep Quillon running: closing it ends Quillon.</source>
        <translation>لا يُظهر سطح المكتب هذا أيقونات الحالة. لإبقاء Quillon عاملًا يجب تصغير النافذة: إغلاقها ينهي Quillon.</translation>
    </message>
    <message>
        <source>Signed in to the folder %@</source>
        <translation>سُجّل الدخول إلى المجلد ⁨%@⁩</translation>
    </message>
    <message>
        <source>Signed in as %@ at %@</source>
        <translation>سُجّل الدخول باسم ⁨%@⁩ على ⁨%@⁩</translation>
    </message>
    <message>
        <source>Signed out. Rules, history and settings stay on this computer.</source>
        <translation>سُجّل الخروج. تبقى القواعد والتأريخ والإعدادات على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Looking for your files…</source>
        <translation>جارٍ البحث عن الملفات…</translation>
    </message>
    <message>
        <source>Trying what the account can do…</source>
        <translation>جارٍ تجربة إمكانات الحساب…</translation>
    </message>
    <message>
        <source>Opening the account with the passphrase…</source>
        <translation>جارٍ فتح الحساب بعبارة السر…</translation>
    </message>
    <message>
        <source>Waiting for the keyring…</source>
        <translation>في انتظار حلقة المفاتيح…</translation>
    </message>
    <message>
        <source>Write the whole path of the folder.</source>
        <translation>اكتب المسار الكامل للمجلد.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>أدخل عنوان الخادوم.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>أدخل اسم المستخدم.</translation>
    </message>
    <message>
        <source>Enter an app password.</source>
        <translation>أدخل كلمة سر للتطبيق.</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>عبارتا السر غير متطابقتين.</translation>
    </message>
    <message>
        <source>The record has been deleted.</source>
        <translation>حُذفت المدخلة.</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>جارٍ التصدير…</translation>
    </message>
    <message>
        <source>The records could not be read.</source>
        <translation>تعذّرت قراءة المدخلات.</translation>
    </message>
    <message>
        <source>The file could not be written. %@</source>
        <translation>تعذّرت كتابة الملف. ⁨%@⁩</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>جارٍ البحث…</translation>
    </message>
    <message>
        <source>%@: %@</source>
        <translation>‏⁨%@⁩: ⁨%@⁩</translation>
    </message>
    <message>
        <source>Nothing contains “%@”. Upper and lower case matter.</source>
        <translation>لا شيء يحوي «⁨%@⁩». تُراعى حالة الأحرف.</translation>
    </message>
    <message>
        <source>Every address change is listed here.</source>
        <translation>تُدرج هنا كل تغييرات العناوين.</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>جارٍ الحذف…</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>جارٍ الحفظ…</translation>
    </message>
    <message>
        <source>The records could not be deleted.</source>
        <translation>تعذّر حذف المدخلات.</translation>
    </message>
    <message>
        <source>So many records at once cannot be brought back.</source>
        <translation>لا يمكن استرجاع هذا العدد من المدخلات دفعة واحدة.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Nothing in the history that is not saved.</source>
        <translation>لا شيء في التأريخ لم يُحفظ.</translation>
    </message>
    <message>
        <source>%@ and %@ added.</source>
        <translation>أُضيف: ⁨%@⁩ و⁨%@⁩.</translation>
    </message>
    <message>
        <source>The history cannot be read.</source>
        <translation>لا يمكن قراءة التأريخ.</translation>
    </message>
    <message>
        <source>%@ These are the newest %@; import again for more.</source>
        <translation>⁨%@⁩ هذه أحدث ⁨%@⁩؛ استورد مرة أخرى للمزيد.</translation>
    </message>
    <message>
        <source>Today %@</source>
        <translation>اليوم ⁨%@⁩</translation>
    </message>
    <message>
        <source>Yesterday %@</source>
        <translation>أمس ⁨%@⁩</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>%@ %@</source>
        <translation>‏⁨%@⁩ ⁨%@⁩</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>الواجهة</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>BSSID</source>
        <translation>BSSID</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>ملاحظات</translation>
    </message>
    <message>
        <source>Search All Fields</source>
        <translation>البحث في كل الحقول</translation>
    </message>
    <message>
        <source>Search Devices</source>
        <translation>البحث في الأجهزة</translation>
    </message>
    <message>
        <source>Search Interfaces</source>
        <translation>البحث في الواجهات</translation>
    </message>
    <message>
        <source>Search Addresses</source>
        <translation>البحث في العناوين</translation>
    </message>
    <message>
        <source>Search Network Names</source>
        <translation>البحث في أسماء الشبكات</translation>
    </message>
    <message>
        <source>Search BSSIDs</source>
        <translation>البحث في BSSID</translation>
    </message>
    <message>
        <source>Search Notes</source>
        <translation>البحث في الملاحظات</translation>
    </message>
    <message>
        <source>%@ was given %@.</source>
        <translation>أُعطيت ⁨%@⁩ العنوان ⁨%@⁩.</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@.</source>
        <translation>أُعطيت ⁨%@⁩ (⁨%@⁩) العنوان ⁨%@⁩.</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@ on %@.</source>
        <translation>أُعطيت ⁨%@⁩ (⁨%@⁩) العنوان ⁨%@⁩ على ⁨%@⁩.</translation>
    </message>
    <message>
        <source>New Network Rule…</source>
        <translation>قاعدة شبكة جديدة…</translation>
    </message>
    <message>
        <source>New Login Rule…</source>
        <translation>قاعدة دخول جديدة…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message>
        <source>%@Hardware Address · %@</source>
        <translation>%@عنوان العتاد · ⁨%@⁩</translation>
    </message>
    <message>
        <source>%@Current Address · %@</source>
        <translation>%@العنوان الحالي · ⁨%@⁩</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>تغيير عشوائي</translation>
    </message>
    <message>
        <source>%@Resume Timer</source>
        <translation>%@استئناف المؤقّت</translation>
    </message>
    <message>
        <source>%@Pause Timer</source>
        <translation>%@إيقاف المؤقّت مؤقتًا</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>ليس متاحًا في هذه الإصدارة بعد</translation>
    </message>
    <message>
        <source>Open Quillon</source>
        <translation>فتح Quillon</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>نظرة عامة</translation>
    </message>
    <message>
        <source>History</source>
        <translation>التأريخ</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>القواعد</translation>
    </message>
    <message>
        <source>Saved Networks and Addresses</source>
        <translation>الشبكات والعناوين المحفوظة</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>التفضيلات</translation>
    </message>
    <message>
        <source>About Quillon</source>
        <translation>عن Quillon</translation>
    </message>
    <message>
        <source>Quit Quillon</source>
        <translation>إنهاء Quillon</translation>
    </message>
    <message>
        <source>Looking it up…</source>
        <translation>جارٍ الاستعلام…</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>لا إجابة</translation>
    </message>
    <message>
        <source>Look-up is off</source>
        <translation>الاستعلام متوقف</translation>
    </message>
    <message>
        <source>A public service is being asked under which address it sees you.</source>
        <translation>تُسأل خدمة عامة عن العنوان الذي تراه لهذا الحاسوب.</translation>
    </message>
    <message>
        <source>The public service did not answer. This is what it said before. The button asks again.</source>
        <translation>لم تجب الخدمة العامة. هذا ما أجابت به من قبل. يسأل الزر مرة أخرى.</translation>
    </message>
    <message>
        <source>The public service did not answer with an address. The button asks again.</source>
        <translation>لم تجب الخدمة العامة بعنوان. يسأل الزر مرة أخرى.</translation>
    </message>
    <message>
        <source>It is not looked up by itself. The button asks a public service once.</source>
        <translation>لا يُستعلم عنه تلقائيًا. يسأل الزر خدمة عامة مرة واحدة.</translation>
    </message>
    <message>
        <source>Remove Network from Favorites</source>
        <translation>إزالة الشبكة من المفضّلة</translation>
    </message>
    <message>
        <source>Add Network to Favorites</source>
        <translation>إضافة الشبكة إلى المفضّلة</translation>
    </message>
    <message>
        <source>Remove Address from Favorites</source>
        <translation>إزالة العنوان من المفضّلة</translation>
    </message>
    <message>
        <source>Add Address to Favorites</source>
        <translation>إضافة العنوان إلى المفضّلة</translation>
    </message>
    <message>
        <source>Network name</source>
        <translation>اسم الشبكة</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>عنوان IP</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>الأمان</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>الإشارة</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>الضوضاء</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>القناة</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>الوضع</translation>
    </message>
    <message>
        <source>MCS</source>
        <translation>MCS</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>البلد</translation>
    </message>
    <message>
        <source>Wi-Fi is switched off.</source>
        <translation>شبكة Wi-Fi متوقفة.</translation>
    </message>
    <message>
        <source>Write it with colons: %@.</source>
        <translation>يُكتب بنقطتين فاصلتين: ⁨%@⁩.</translation>
    </message>
    <message>
        <source>This is not a MAC address.</source>
        <translation>هذا ليس عنوان MAC.</translation>
    </message>
    <message>
        <source>A MAC address has 12 hexadecimal digits.</source>
        <translation>يتكوّن عنوان MAC من 12 رقمًا ستّ عشريًا.</translation>
    </message>
    <message>
        <source>%@ is saved already.</source>
        <translation>سبق حفظ ⁨%@⁩.</translation>
    </message>
    <message>
        <source>A network needs its name, too.</source>
        <translation>تحتاج الشبكة إلى اسمها أيضًا.</translation>
    </message>
    <message>
        <source>Group address: most adapters refuse it.</source>
        <translation>عنوان مجموعة: ترفضه معظم المحوّلات.</translation>
    </message>
    <message>
        <source>Favorite removed</source>
        <translation>أُزيل من المفضّلة</translation>
    </message>
    <message>
        <source>Configure %@</source>
        <translation>ضبط ⁨%@⁩</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>نشطة</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>غير نشطة</translation>
    </message>
    <message>
        <source>Not there</source>
        <translation>غير موجودة</translation>
    </message>
    <message>
        <source>Changing…</source>
        <translation>جارٍ التغيير…</translation>
    </message>
    <message>
        <source>The address is now %@.</source>
        <translation>العنوان الآن هو ⁨%@⁩.</translation>
    </message>
    <message>
        <source>The address is being changed</source>
        <translation>يجري تغيير العنوان</translation>
    </message>
    <message>
        <source>The interface is not there</source>
        <translation>الواجهة غير موجودة</translation>
    </message>
    <message>
        <source>The helper tool is not installed</source>
        <translation>الأداة المساعدة غير مثبّتة</translation>
    </message>
    <message>
        <source>The interface has no factory address that is known</source>
        <translation>عنوان المصنع لهذه الواجهة غير معروف</translation>
    </message>
    <message>
        <source>The interface has its factory address</source>
        <translation>تستخدم الواجهة عنوان المصنع</translation>
    </message>
    <message>
        <source>Gives the interface a random, locally administered address</source>
        <translation>يعطي الواجهة عنوانًا عشوائيًا يُدار محليًا</translation>
    </message>
    <message>
        <source>Gives the interface its hardware address again</source>
        <translation>يعيد إلى الواجهة عنوان عتادها</translation>
    </message>
    <message>
        <source>Read the License</source>
        <translation>قراءة الرخصة</translation>
    </message>
    <message>
        <source>The License on the Web</source>
        <translation>الرخصة على الوب</translation>
    </message>
    <message>
        <source>Where Vendors Are Registered</source>
        <translation>أين يُسجّل المصنّعون</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>الإصدارة ⁨%@⁩</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or any later version. It comes without any warranty.</source>
        <translation>برنامج حر بموجب رخصة غنو العمومية العامة، الإصدارة 3 أو أي إصدارة أحدث. يأتي بلا أي ضمان.</translation>
    </message>
    <message>
        <source>No program here opens %@</source>
        <translation>لا يوجد هنا برنامج يفتح ⁨%@⁩</translation>
    </message>
    <message>
        <source>Helper: installed, version %@</source>
        <translation>الأداة المساعدة: مثبّتة، الإصدارة ⁨%@⁩</translation>
    </message>
    <message>
        <source>Helper: not installed</source>
        <translation>الأداة المساعدة: غير مثبّتة</translation>
    </message>
    <message>
        <source>Helper: outdated, version %@</source>
        <translation>الأداة المساعدة: قديمة، الإصدارة ⁨%@⁩</translation>
    </message>
    <message>
        <source>No account yet: there is nowhere to sync with.</source>
        <translation>لا يوجد حساب بعد: لا مكان للمزامنة معه.</translation>
    </message>
    <message>
        <source>Not while this desktop shows no status items.</source>
        <translation>غير متاح ما دام سطح المكتب لا يُظهر أيقونات الحالة.</translation>
    </message>
    <message>
        <source>Only with the icon in the status bar.</source>
        <translation>فقط مع الأيقونة في شريط الحالة.</translation>
    </message>
    <message>
        <source>no program that is known</source>
        <translation>لا برنامج معروف</translation>
    </message>
    <message>
        <source>This desktop does not start programs at login by itself.</source>
        <translation>لا يبدأ سطح المكتب هذا البرامج عند تسجيل الدخول من تلقاء نفسه.</translation>
    </message>
    <message>
        <source>Whether this desktop starts programs at login cannot be told from here.</source>
        <translation>لا يمكن من هنا معرفة ما إذا كان سطح المكتب يبدأ البرامج عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>The program that starts Quillon at login is not installed.</source>
        <translation>البرنامج الذي يبدأ Quillon عند تسجيل الدخول غير مثبّت.</translation>
    </message>
    <message>
        <source>The autostart entry is missing or cannot be written. Switch this off and on again to have it made anew.</source>
        <translation>مدخل البدء التلقائي مفقود أو لا يمكن كتابته. عطّل هذا الخيار ثم فعّله لإنشائه من جديد.</translation>
    </message>
    <message>
        <source>There still is an autostart entry. Switch this on and off again to have it taken out.</source>
        <translation>لا يزال هناك مدخل بدء تلقائي. فعّل هذا الخيار ثم عطّله لإزالته.</translation>
    </message>
    <message>
        <source>The desktop has Quillon switched off in its own list. Switch this off and on again to have it started.</source>
        <translation>عطّل سطح المكتب Quillon في قائمته. عطّل هذا الخيار ثم فعّله ليبدأ من جديد.</translation>
    </message>
    <message>
        <source>The autostart entry is for other desktops only. Switch this off and on again to have it act here.</source>
        <translation>مدخل البدء التلقائي لأسطح مكتب أخرى فقط. عطّل هذا الخيار ثم فعّله ليعمل هنا.</translation>
    </message>
    <message>
        <source>There is an autostart entry of your own: it is left as it is.</source>
        <translation>يوجد مدخل بدء تلقائي خاص بك: سيبقى كما هو.</translation>
    </message>
    <message>
        <source>GeneralPreferences_en</source>
        <translation>GeneralPreferences_en</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>AdvancedPreferences_en</source>
        <translation>AdvancedPreferences_en</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>متقدم</translation>
    </message>
    <message>
        <source>DisplayPreferences_en</source>
        <translation>DisplayPreferences_en</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>VendorPreferences_en</source>
        <translation>VendorPreferences_en</translation>
    </message>
    <message>
        <source>Vendor Data</source>
        <translation>بيانات المصنّعين</translation>
    </message>
    <message>
        <source>RulesPreferences_en</source>
        <translation>RulesPreferences_en</translation>
    </message>
    <message>
        <source>UpdatePreferences_en</source>
        <translation>UpdatePreferences_en</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>AboutPreferences_en</source>
        <translation>AboutPreferences_en</translation>
    </message>
    <message>
        <source>About</source>
        <translation>عن البرنامج</translation>
    </message>
    <message>
        <source>Type a shortcut</source>
        <translation>اضغط الاختصار</translation>
    </message>
    <message>
        <source>Escape keeps the shortcut of before, Backspace clears it.</source>
        <translation>يُبقي Escape الاختصار السابق، ويمسحه Backspace.</translation>
    </message>
    <message>
        <source>This key cannot be part of a shortcut.</source>
        <translation>لا يمكن استخدام هذا المفتاح في اختصار.</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>تسجيل الاختصار</translation>
    </message>
    <message>
        <source>The desktop has the last word: its settings show the keys that act.</source>
        <translation>القرار الأخير لسطح المكتب: تُظهر إعداداته المفاتيح الفاعلة.</translation>
    </message>
    <message>
        <source>“%@” uses this shortcut.</source>
        <translation>يستخدم «⁨%@⁩» هذا الاختصار.</translation>
    </message>
    <message>
        <source>Any Network</source>
        <translation>أي شبكة</translation>
    </message>
    <message>
        <source>An Unknown Network</source>
        <translation>شبكة غير معروفة</translation>
    </message>
    <message>
        <source>No interface here can be changed.</source>
        <translation>لا توجد هنا واجهة يمكن تغييرها.</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not here any more.</source>
        <translation>وُضعت القاعدة من أجل ⁨%@⁩ التي لم تعد هنا.</translation>
    </message>
    <message>
        <source>Login rules do not act on Wi-Fi.</source>
        <translation>لا تعمل قواعد الدخول على Wi-Fi.</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not saved any more.</source>
        <translation>وُضعت القاعدة من أجل ⁨%@⁩ التي لم تعد محفوظة.</translation>
    </message>
    <message>
        <source>%@ is not saved: press its heart first.</source>
        <translation>لم تُحفظ ⁨%@⁩: اضغط على قلبها أولًا.</translation>
    </message>
    <message>
        <source>“%@” is no vendor: choose one from the list.</source>
        <translation>«⁨%@⁩» ليس مصنّعًا: اختر واحدًا من القائمة.</translation>
    </message>
    <message>
        <source>Repeated addresses have the vendor of the main window, not this one.</source>
        <translation>تأخذ العناوين المتكررة مصنّع النافذة الرئيسية لا هذا.</translation>
    </message>
    <message>
        <source>Save or cancel this rule before you begin another one.</source>
        <translation>احفظ هذه القاعدة أو ألغها قبل بدء قاعدة أخرى.</translation>
    </message>
    <message>
        <source>The rule that was open is not there any more.</source>
        <translation>لم تعد القاعدة المفتوحة موجودة.</translation>
    </message>
    <message>
        <source>Another rule for this interface and network was switched off: only one can be on.</source>
        <translation>عُطّلت قاعدة أخرى لهذه الواجهة والشبكة: يمكن تفعيل واحدة فقط.</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>يوميًا</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>أسبوعيًا</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>شهريًا</translation>
    </message>
    <message>
        <source>The internet cannot be reached now.</source>
        <translation>لا يمكن الوصول إلى الإنترنت الآن.</translation>
    </message>
    <message>
        <source>The place to look at is not an https address.</source>
        <translation>المكان المطلوب ليس عنوان https.</translation>
    </message>
    <message>
        <source>The list of versions could not be fetched.</source>
        <translation>تعذّر جلب قائمة الإصدارات.</translation>
    </message>
    <message>
        <source>What came is not from the authors of Quillon and was not used.</source>
        <translation>ما وصل ليس من مؤلفي Quillon ولم يُستخدم.</translation>
    </message>
    <message>
        <source>The list of versions that came is out of date and was not used.</source>
        <translation>قائمة الإصدارات التي وصلت قديمة ولم تُستخدم.</translation>
    </message>
    <message>
        <source>Your system&apos;s software updates bring new versions.</source>
        <translation>تأتي الإصدارات الجديدة مع تحديثات البرمجيات في النظام.</translation>
    </message>
    <message>
        <source>It was built without a list of versions to ask for. Nothing is asked, whatever is chosen here.</source>
        <translation>بُني دون قائمة إصدارات يُسأل عنها. لا يُسأل عن شيء مهما كان الاختيار هنا.</translation>
    </message>
    <message>
        <source>Last checked: %@</source>
        <translation>آخر تحقق: ⁨%@⁩</translation>
    </message>
    <message>
        <source>Not checked yet.</source>
        <translation>لم يُجرَ التحقق بعد.</translation>
    </message>
    <message>
        <source>Quillon %@ is available</source>
        <translation>تتوفّر الإصدارة ⁨%@⁩ من Quillon</translation>
    </message>
    <message>
        <source>This is version %@.</source>
        <translation>هذه هي الإصدارة ⁨%@⁩.</translation>
    </message>
    <message>
        <source>Quillon %@ is the newest version.</source>
        <translation>الإصدارة ⁨%@⁩ من Quillon هي الأحدث.</translation>
    </message>
    <message>
        <source>No browser could be opened.</source>
        <translation>تعذّر فتح أي متصفح.</translation>
    </message>
    <message>
        <source>The list of vendors is missing.</source>
        <translation>قائمة المصنّعين مفقودة.</translation>
    </message>
    <message>
        <source>No vendor begins with “%@”.</source>
        <translation>لا يبدأ اسم أي مصنّع بـ «⁨%@⁩».</translation>
    </message>
    <message numerus="yes">
        <source>%@ Vendor Identifiers</source>
        <translation>
            <numerusform>معرّفات المصنّعين: ⁨%@⁩</numerusform>
            <numerusform>معرّفات المصنّعين: ⁨%@⁩</numerusform>
            <numerusform>معرّفات المصنّعين: ⁨%@⁩</numerusform>
            <numerusform>معرّفات المصنّعين: ⁨%@⁩</numerusform>
            <numerusform>معرّفات المصنّعين: ⁨%@⁩</numerusform>
            <numerusform>معرّفات المصنّعين: ⁨%@⁩</numerusform>
        </translation>
    </message>
    <message>
        <source>Update database</source>
        <translation>تحديث قاعدة البيانات</translation>
    </message>
    <message>
        <source>Getting download information...</source>
        <translation>جارٍ جلب معلومات التنزيل...</translation>
    </message>
    <message>
        <source>Updating Vendor Identifier count...</source>
        <translation>جارٍ تحديث عدد معرّفات المصنّعين...</translation>
    </message>
    <message>
        <source>Cancel download...</source>
        <translation>إلغاء التنزيل...</translation>
    </message>
    <message>
        <source>Downloading... %@MB</source>
        <translation>جارٍ التنزيل... ⁨%@⁩ م.بايت</translation>
    </message>
    <message>
        <source>Downloading... %@% of %@MB</source>
        <translation>جارٍ التنزيل... ⁨%@⁩% من ⁨%@⁩ م.بايت</translation>
    </message>
    <message>
        <source>Download cancelled...</source>
        <translation>أُلغي التنزيل...</translation>
    </message>
    <message>
        <source>Processing data...</source>
        <translation>جارٍ معالجة البيانات...</translation>
    </message>
    <message>
        <source>Parsing file failed...</source>
        <translation>فشل تحليل الملف...</translation>
    </message>
    <message>
        <source>Last Updated: %@</source>
        <translation>آخر تحديث: ⁨%@⁩</translation>
    </message>
    <message>
        <source>Restoring the previous database...</source>
        <translation>جارٍ استعادة قاعدة البيانات السابقة...</translation>
    </message>
    <message>
        <source>Restoring failed...</source>
        <translation>فشلت الاستعادة...</translation>
    </message>
    <message>
        <source>Getting Vendor Identifier count...</source>
        <translation>جارٍ معرفة عدد معرّفات المصنّعين...</translation>
    </message>
    <message>
        <source>This is the address in use. Type or drop another to change it.</source>
        <translation>هذا هو العنوان المستخدم. لتغييره اكتب عنوانًا آخر أو أفلته هنا.</translation>
    </message>
    <message>
        <source>Press Return or Apply to use this address.</source>
        <translation>يستخدم مفتاح الإدخال أو زر «تطبيق» هذا العنوان.</translation>
    </message>
    <message>
        <source>Install the helper to change the address.</source>
        <translation>لتغيير العنوان يجب تثبيت الأداة المساعدة.</translation>
    </message>
    <message>
        <source>This interface is not there: select another.</source>
        <translation>هذه الواجهة غير موجودة: حدّد واجهة أخرى.</translation>
    </message>
    <message>
        <source>No interface is selected: there is none whose address can be changed</source>
        <translation>لم تُحدّد واجهة: لا توجد واجهة يُغيّر عنوانها</translation>
    </message>
    <message>
        <source>The selected interface is not there</source>
        <translation>الواجهة المحدّدة غير موجودة</translation>
    </message>
    <message>
        <source>The field holds no other address to apply</source>
        <translation>لا يحوي الحقل عنوانًا آخر لتطبيقه</translation>
    </message>
    <message>
        <source>Changing an address needs administrator rights, which Quillon itself never has. A small helper makes the change and nothing else. Installing it asks for an administrator&apos;s password once; Preferences › Advanced removes it again.</source>
        <translation>يتطلّب تغيير العنوان صلاحيات مدير النظام التي لا يملكها Quillon نفسه أبدًا. تُجري التغيير أداة مساعدة صغيرة ولا تفعل سوى ذلك. يُطلب عند تثبيتها كلمة سر مدير النظام مرة واحدة؛ ويمكن إزالتها من التفضيلات › متقدم.</translation>
    </message>
    <message>
        <source>(paused)</source>
        <translation>(متوقف مؤقتًا)</translation>
    </message>
    <message>
        <source>...changing MAC Address in %@</source>
        <translation>...يتغيّر عنوان MAC بعد ⁨%@⁩</translation>
    </message>
    <message>
        <source>Quillon Timer started</source>
        <translation>بدأ مؤقّت Quillon</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made first.</source>
        <translation>تسري «⁨%@⁩» بدلًا منها: أُنشئت قبلها.</translation>
    </message>
    <message>
        <source>“%@” is in force instead: this network is not saved.</source>
        <translation>تسري «⁨%@⁩» بدلًا منها: هذه الشبكة غير محفوظة.</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made for this network.</source>
        <translation>تسري «⁨%@⁩» بدلًا منها: أُنشئت لهذه الشبكة.</translation>
    </message>
    <message>
        <source>Not in force: %@ is on no network.</source>
        <translation>غير سارية: ⁨%@⁩ ليست على أي شبكة.</translation>
    </message>
    <message>
        <source>Not in force: the network in use is saved.</source>
        <translation>غير سارية: الشبكة المستخدمة محفوظة.</translation>
    </message>
    <message>
        <source>Not in force: another network is in use.</source>
        <translation>غير سارية: تُستخدم شبكة أخرى.</translation>
    </message>
    <message>
        <source>Not in force: it is switched off.</source>
        <translation>غير سارية: القاعدة معطّلة.</translation>
    </message>
    <message>
        <source>Not in force: %@ is not here.</source>
        <translation>غير سارية: ⁨%@⁩ غير موجودة هنا.</translation>
    </message>
    <message>
        <source>Not in force: login rules do not act on Wi-Fi.</source>
        <translation>غير سارية: لا تعمل قواعد الدخول على Wi-Fi.</translation>
    </message>
    <message>
        <source>In force: it acts when Quillon is started at login.</source>
        <translation>سارية: تعمل عند بدء Quillon مع تسجيل الدخول.</translation>
    </message>
    <message>
        <source>In force now.</source>
        <translation>سارية الآن.</translation>
    </message>
    <message>
        <source>In force, but %@ is not connected.</source>
        <translation>سارية، لكن ⁨%@⁩ غير متصلة.</translation>
    </message>
    <message>
        <source>Not in force now.</source>
        <translation>غير سارية الآن.</translation>
    </message>
    <message>
        <source>On %@, leave %@ as it is.</source>
        <translation>على ⁨%@⁩، تُترك ⁨%@⁩ كما هي.</translation>
    </message>
    <message>
        <source>On any network, leave %@ as it is.</source>
        <translation>على أي شبكة، تُترك ⁨%@⁩ كما هي.</translation>
    </message>
    <message>
        <source>On an unknown network, leave %@ as it is.</source>
        <translation>على شبكة غير معروفة، تُترك ⁨%@⁩ كما هي.</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address once.</source>
        <translation>على ⁨%@⁩، تُعطى ⁨%@⁩ عنوانًا عشوائيًا مرة واحدة.</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address once.</source>
        <translation>على أي شبكة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا مرة واحدة.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address once.</source>
        <translation>على شبكة غير معروفة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا مرة واحدة.</translation>
    </message>
    <message>
        <source>At login, give %@ a random address.</source>
        <translation>عند تسجيل الدخول، تُعطى ⁨%@⁩ عنوانًا عشوائيًا.</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address by %@ once.</source>
        <translation>على ⁨%@⁩، تُعطى ⁨%@⁩ عنوانًا عشوائيًا من ⁨%@⁩ مرة واحدة.</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address by %@ once.</source>
        <translation>على أي شبكة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا من ⁨%@⁩ مرة واحدة.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address by %@ once.</source>
        <translation>على شبكة غير معروفة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا من ⁨%@⁩ مرة واحدة.</translation>
    </message>
    <message>
        <source>At login, give %@ a random address by %@.</source>
        <translation>عند تسجيل الدخول، تُعطى ⁨%@⁩ عنوانًا عشوائيًا من ⁨%@⁩.</translation>
    </message>
    <message>
        <source>On %@, give %@ the address %@.</source>
        <translation>على ⁨%@⁩، تُعطى ⁨%@⁩ العنوان ⁨%@⁩.</translation>
    </message>
    <message>
        <source>On any network, give %@ the address %@.</source>
        <translation>على أي شبكة، تُعطى ⁨%@⁩ العنوان ⁨%@⁩.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ the address %@.</source>
        <translation>على شبكة غير معروفة، تُعطى ⁨%@⁩ العنوان ⁨%@⁩.</translation>
    </message>
    <message>
        <source>At login, give %@ the address %@.</source>
        <translation>عند تسجيل الدخول، تُعطى ⁨%@⁩ العنوان ⁨%@⁩.</translation>
    </message>
    <message>
        <source>has an Active rule</source>
        <translation>توجد قاعدة نشطة</translation>
    </message>
    <message>
        <source>no rules are currently Active</source>
        <translation>لا توجد قواعد نشطة حاليًا</translation>
    </message>
    <message>
        <source>no rules have been configured</source>
        <translation>لم تُضبط أي قواعد</translation>
    </message>
    <message>
        <source>Please sign in to iCloud</source>
        <translation>يُرجى تسجيل الدخول إلى iCloud</translation>
    </message>
    <message>
        <source>Open System Settings, and login into your iCloud account to enable sync across all your devices.</source>
        <translation>افتح إعدادات النظام وسجّل الدخول إلى حساب iCloud لتفعيل المزامنة على كل الأجهزة.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Your iCloud account has changed. Do you want to synchronise with the new account?</source>
        <translation>تغيّر حساب iCloud. هل تريد المزامنة مع الحساب الجديد؟</translation>
    </message>
    <message>
        <source>You are asked this after you have logged in to a new iCloud account, and after the computer was restored from a backup.</source>
        <translation>يُطرح هذا السؤال بعد تسجيل الدخول إلى حساب iCloud جديد، وبعد استعادة الحاسوب من نسخة احتياطية.</translation>
    </message>
    <message>
        <source>iCloud</source>
        <translation>iCloud</translation>
    </message>
    <message>
        <source>updates received</source>
        <translation>وصلت تحديثات</translation>
    </message>
    <message>
        <source>Account…</source>
        <translation>الحساب…</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>تسجيل الخروج</translation>
    </message>
    <message>
        <source>Signs in to the account to sync with</source>
        <translation>يسجّل الدخول إلى حساب المزامنة</translation>
    </message>
    <message>
        <source>Forgets the account and its passwords on this computer</source>
        <translation>ينسى الحساب وكلمات سره على هذا الحاسوب</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Sync Account</source>
        <translation>حساب المزامنة</translation>
    </message>
    <message>
        <source>Kind of account</source>
        <translation>نوع الحساب</translation>
    </message>
    <message>
        <source>Where the files of the account are</source>
        <translation>مكان ملفات الحساب</translation>
    </message>
    <message>
        <source>Nextcloud or WebDAV</source>
        <translation>‏Nextcloud أو WebDAV</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>Encrypts what is stored. The same on all your computers; without it nothing can be read.</source>
        <translation>تعمّي ما يُخزّن. هي نفسها على كل الحواسيب؛ ومن دونها لا يمكن قراءة شيء.</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>عبارة السر</translation>
    </message>
    <message>
        <source>What the account holds is replaced by this computer&apos;s settings.</source>
        <translation>تحل إعدادات هذا الحاسوب محل محتوى الحساب.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>الخادوم</translation>
    </message>
    <message>
        <source>Its address, or that of your files there, as a browser shows it</source>
        <translation>عنوانه أو عنوان الملفات عليه كما يظهر في المتصفح</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>اسم المستخدم</translation>
    </message>
    <message>
        <source>The name that you have at this server</source>
        <translation>الاسم المستخدم على هذا الخادوم</translation>
    </message>
    <message>
        <source>App password</source>
        <translation>كلمة سر التطبيق</translation>
    </message>
    <message>
        <source>Made in the security settings of your account at the server</source>
        <translation>تُنشأ في إعدادات أمان الحساب على الخادوم</translation>
    </message>
    <message>
        <source>Kept in your keyring.</source>
        <translation>تُحفظ في حلقة المفاتيح.</translation>
    </message>
    <message>
        <source>One that another program makes equal on your computers.</source>
        <translation>مجلد يوحّد برنامج آخر محتواه على كل الحواسيب.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>اختيار…</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>اختيار مجلد</translation>
    </message>
    <message>
        <source>Looks for it in your files</source>
        <translation>البحث عنه بين الملفات</translation>
    </message>
    <message>
        <source>Repeat passphrase</source>
        <translation>تكرار عبارة السر</translation>
    </message>
    <message>
        <source>The account is new: nobody can tell you later what you typed</source>
        <translation>الحساب جديد: لن يستطيع أحد لاحقًا معرفة ما كُتب</translation>
    </message>
    <message>
        <source>This is the SHA-256 fingerprint of the server&apos;s certificate. Accept it only if the server&apos;s administrator tells you the same one.</source>
        <translation>هذه بصمة SHA-256 لشهادة الخادوم. لا تقبلها إلا إذا ذكر مدير الخادوم البصمة نفسها.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Copy Fingerprint</source>
        <translation>نسخ البصمة</translation>
    </message>
    <message>
        <source>To compare it in another window</source>
        <translation>لمقارنتها في نافذة أخرى</translation>
    </message>
    <message>
        <source>Accept Certificate</source>
        <translation>قبول الشهادة</translation>
    </message>
    <message>
        <source>Signs in, and trusts this certificate for this account from now on</source>
        <translation>يسجّل الدخول ويثق بهذه الشهادة لهذا الحساب من الآن</translation>
    </message>
    <message>
        <source>Gives up what is under way, or closes</source>
        <translation>يتخلى عمّا يجري، أو يغلق النافذة</translation>
    </message>
    <message>
        <source>Signing In…</source>
        <translation>جارٍ تسجيل الدخول…</translation>
    </message>
    <message>
        <source>Tries the account, and switches sync on</source>
        <translation>يجرّب الحساب ويفعّل المزامنة</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>ملاحظة</translation>
    </message>
    <message>
        <source>Return saves the note, Escape gives it up.</source>
        <translation>يحفظ مفتاح الإدخال الملاحظة، ويلغيها Escape.</translation>
    </message>
    <message>
        <source>F2 edits the note, Delete deletes.</source>
        <translation>يحرّر F2 الملاحظة، ويحذف Delete المدخلة.</translation>
    </message>
    <message>
        <source>Save Addresses</source>
        <translation>حفظ العناوين</translation>
    </message>
    <message>
        <source>Adds the addresses of the selected records to the saved ones.</source>
        <translation>يضيف عناوين المدخلات المحدّدة إلى المحفوظة.</translation>
    </message>
    <message>
        <source>Save Networks</source>
        <translation>حفظ الشبكات</translation>
    </message>
    <message>
        <source>Adds the networks of the selected records to the saved ones.</source>
        <translation>يضيف شبكات المدخلات المحدّدة إلى المحفوظة.</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>تصدير…</translation>
    </message>
    <message>
        <source>Writes what is listed into a file that spreadsheets read.</source>
        <translation>يكتب المعروض في ملف تقرؤه برامج الجداول.</translation>
    </message>
    <message>
        <source>Deletes the selected records.</source>
        <translation>يحذف المدخلات المحدّدة.</translation>
    </message>
    <message>
        <source>Upper and lower case matter.</source>
        <translation>تُراعى حالة الأحرف.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>What is done stays done.</source>
        <translation>ما أُنجز يبقى منجزًا.</translation>
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
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Edit Note</source>
        <translation>تحرير الملاحظة</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>الترتيب حسب</translation>
    </message>
    <message>
        <source>Reverse Order</source>
        <translation>عكس الترتيب</translation>
    </message>
    <message>
        <source>Export History</source>
        <translation>تصدير التأريخ</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>مسح البحث</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>File menu</source>
        <translation>قائمة الملف</translation>
    </message>
    <message>
        <source>File menu (F10)</source>
        <translation>قائمة الملف (F10)</translation>
    </message>
    <message>
        <source>External address</source>
        <translation>العنوان الخارجي</translation>
    </message>
    <message>
        <source>Refresh external address</source>
        <translation>تحديث العنوان الخارجي</translation>
    </message>
    <message>
        <source>Asks a public service under which address it sees you</source>
        <translation>يسأل خدمة عامة عن العنوان الذي تراه لهذا الحاسوب</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>الاسم (اختياري)</translation>
    </message>
    <message>
        <source>Saved addresses</source>
        <translation>العناوين المحفوظة</translation>
    </message>
    <message>
        <source>Add the current address with the heart.</source>
        <translation>يضيف القلب العنوان الحالي.</translation>
    </message>
    <message>
        <source>Edit Saved Items</source>
        <translation>تحرير المحفوظات</translation>
    </message>
    <message>
        <source>Opens the window of saved networks and addresses</source>
        <translation>يفتح نافذة الشبكات والعناوين المحفوظة</translation>
    </message>
    <message>
        <source>Click to put one into the field, or drag it there.</source>
        <translation>انقر على عنوان لوضعه في الحقل، أو اسحبه إليه.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>الشبكات</translation>
    </message>
    <message>
        <source>Join a network and press its heart.</source>
        <translation>انضم إلى شبكة واضغط على قلبها.</translation>
    </message>
    <message>
        <source>Network…</source>
        <translation>شبكة…</translation>
    </message>
    <message>
        <source>Save a network by hand</source>
        <translation>حفظ شبكة يدويًا</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>العناوين</translation>
    </message>
    <message>
        <source>Open the saved addresses and press the heart.</source>
        <translation>افتح العناوين المحفوظة واضغط على القلب.</translation>
    </message>
    <message>
        <source>Address…</source>
        <translation>عنوان…</translation>
    </message>
    <message>
        <source>Save an address by hand</source>
        <translation>حفظ عنوان يدويًا</translation>
    </message>
    <message>
        <source>Import from History</source>
        <translation>استيراد من التأريخ</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>جارٍ الاستيراد…</translation>
    </message>
    <message>
        <source>Save the addresses and networks that the history knows</source>
        <translation>حفظ العناوين والشبكات التي يعرفها التأريخ</translation>
    </message>
    <message>
        <source>Recognize by</source>
        <translation>التعرّف حسب</translation>
    </message>
    <message>
        <source>Name %@</source>
        <translation>الاسم ⁨%@⁩</translation>
    </message>
    <message>
        <source>Access point %@</source>
        <translation>نقطة الوصول ⁨%@⁩</translation>
    </message>
    <message>
        <source>Pause the countdown of %@</source>
        <translation>إيقاف العد التنازلي لواجهة ⁨%@⁩ مؤقتًا</translation>
    </message>
    <message>
        <source>Resume the countdown of %@</source>
        <translation>استئناف العد التنازلي لواجهة ⁨%@⁩</translation>
    </message>
    <message>
        <source>Countdown paused</source>
        <translation>أُوقف العد التنازلي مؤقتًا</translation>
    </message>
    <message>
        <source>Countdown resumed</source>
        <translation>استُؤنف العد التنازلي</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>العتاد</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>مغيّر</translation>
    </message>
    <message>
        <source>Hardware %@</source>
        <translation>العتاد ⁨%@⁩</translation>
    </message>
    <message>
        <source>Vendor %@</source>
        <translation>المصنّع ⁨%@⁩</translation>
    </message>
    <message>
        <source>Current address</source>
        <translation>العنوان الحالي</translation>
    </message>
    <message>
        <source>Interfaces</source>
        <translation>الواجهات</translation>
    </message>
    <message>
        <source>Randomizing…</source>
        <translation>جارٍ التغيير…</translation>
    </message>
    <message>
        <source>Rules of %@</source>
        <translation>قواعد ⁨%@⁩</translation>
    </message>
    <message>
        <source>Randomize %@</source>
        <translation>تغيير ⁨%@⁩ عشوائيًا</translation>
    </message>
    <message>
        <source>Randomizing %@</source>
        <translation>جارٍ تغيير ⁨%@⁩ عشوائيًا</translation>
    </message>
    <message>
        <source>Restore the hardware address of %@</source>
        <translation>استعادة عنوان عتاد ⁨%@⁩</translation>
    </message>
    <message>
        <source>Restoring the hardware address of %@</source>
        <translation>جارٍ استعادة عنوان عتاد ⁨%@⁩</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>إعادة الت&amp;حميل</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>إعادة التحميل</translation>
    </message>
    <message>
        <source>Reads the interfaces and their addresses anew</source>
        <translation>يقرأ الواجهات وعناوينها من جديد</translation>
    </message>
    <message>
        <source>There are interfaces that are not listed here yet.</source>
        <translation>توجد واجهات لا تظهر هنا بعد.</translation>
    </message>
    <message>
        <source>The list shows the addresses as they were when it was opened.</source>
        <translation>تُظهر القائمة العناوين كما كانت عند فتحها.</translation>
    </message>
    <message>
        <source>&amp;Install Helper</source>
        <translation>ت&amp;ثبيت الأداة</translation>
    </message>
    <message>
        <source>The helper is not installed</source>
        <translation>الأداة المساعدة غير مثبّتة</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>جارٍ التثبيت…</translation>
    </message>
    <message>
        <source>Install helper</source>
        <translation>تثبيت الأداة المساعدة</translation>
    </message>
    <message>
        <source>Asks for an administrator&apos;s password</source>
        <translation>يطلب كلمة سر مدير النظام</translation>
    </message>
    <message>
        <source>By the Quillon authors</source>
        <translation>من مؤلفي Quillon</translation>
    </message>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>تثبيت</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>إزالة التثبيت</translation>
    </message>
    <message>
        <source>Ask when another program replaces an address</source>
        <translation>السؤال عندما يستبدل برنامج آخر عنوانًا</translation>
    </message>
    <message>
        <source>Who manages each interface</source>
        <translation>من يدير كل واجهة</translation>
    </message>
    <message>
        <source>Uninstalling…</source>
        <translation>جارٍ إزالة التثبيت…</translation>
    </message>
    <message>
        <source>Repeat every %@ minutes by default</source>
        <translation>التكرار كل ⁨%@⁩ دقيقة مبدئيًا</translation>
    </message>
    <message>
        <source>For rules whose own minutes are left empty</source>
        <translation>للقواعد التي تُركت دقائقها فارغة</translation>
    </message>
    <message>
        <source>Capital letters</source>
        <translation>أحرف كبيرة</translation>
    </message>
    <message>
        <source>Small letters</source>
        <translation>أحرف صغيرة</translation>
    </message>
    <message>
        <source>Letters of addresses</source>
        <translation>أحرف العناوين</translation>
    </message>
    <message>
        <source>Look up the external address</source>
        <translation>الاستعلام عن العنوان الخارجي</translation>
    </message>
    <message>
        <source>Asks a public service whenever the network changes.</source>
        <translation>يسأل خدمة عامة كلما تغيّرت الشبكة.</translation>
    </message>
    <message>
        <source>Start Quillon at login</source>
        <translation>بدء Quillon عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Do not open the window at login</source>
        <translation>عدم فتح النافذة عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Show in the status bar</source>
        <translation>الإظهار في شريط الحالة</translation>
    </message>
    <message>
        <source>Hide from the task bar</source>
        <translation>الإخفاء من شريط المهام</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>إظهار الإشعارات</translation>
    </message>
    <message>
        <source>Shortcuts that work in every window</source>
        <translation>اختصارات تعمل في كل نافذة</translation>
    </message>
    <message>
        <source>Sync settings, rules and history</source>
        <translation>مزامنة الإعدادات والقواعد والتأريخ</translation>
    </message>
    <message>
        <source>Shortcut for “%@”</source>
        <translation>اختصار «⁨%@⁩»</translation>
    </message>
    <message>
        <source>Clear the shortcut for “%@”</source>
        <translation>مسح اختصار «⁨%@⁩»</translation>
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
        <source>Countdown ended</source>
        <translation>انتهى العد التنازلي</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>الإجراء</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>التكرار</translation>
    </message>
    <message>
        <source>Save Rule</source>
        <translation>حفظ القاعدة</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>عدم فعل شيء</translation>
    </message>
    <message>
        <source>Change Address</source>
        <translation>تغيير العنوان</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>مرة واحدة</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>كل</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>الدقائق</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>دقيقة</translation>
    </message>
    <message>
        <source>New Random Address</source>
        <translation>عنوان عشوائي جديد</translation>
    </message>
    <message>
        <source>Makes a random address, saves it, and uses it whenever the rule acts</source>
        <translation>ينشئ عنوانًا عشوائيًا ويحفظه ويستخدمه كلما عملت القاعدة</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>المصنّع</translation>
    </message>
    <message>
        <source>New rules start switched off.</source>
        <translation>تكون القواعد الجديدة معطّلة في البداية.</translation>
    </message>
    <message>
        <source>Press Return to rename the rule</source>
        <translation>يغيّر مفتاح الإدخال اسم القاعدة</translation>
    </message>
    <message>
        <source>Active rule</source>
        <translation>قاعدة نشطة</translation>
    </message>
    <message>
        <source>No active rules</source>
        <translation>لا توجد قواعد نشطة</translation>
    </message>
    <message>
        <source>No rules</source>
        <translation>لا توجد قواعد</translation>
    </message>
    <message>
        <source>No rule for this interface.</source>
        <translation>لا توجد قاعدة لهذه الواجهة.</translation>
    </message>
    <message>
        <source>Edit Rules</source>
        <translation>تحرير القواعد</translation>
    </message>
    <message>
        <source>Opens the rule editor</source>
        <translation>يفتح محرر القواعد</translation>
    </message>
    <message>
        <source>Rules change the address when you join a network.</source>
        <translation>تغيّر القواعد العنوان عند الانضمام إلى شبكة.</translation>
    </message>
    <message>
        <source>New Network Rule</source>
        <translation>قاعدة شبكة جديدة</translation>
    </message>
    <message>
        <source>Network Rule</source>
        <translation>قاعدة شبكة</translation>
    </message>
    <message>
        <source>New network rule</source>
        <translation>قاعدة شبكة جديدة</translation>
    </message>
    <message>
        <source>Login Rule</source>
        <translation>قاعدة دخول</translation>
    </message>
    <message>
        <source>New login rule</source>
        <translation>قاعدة دخول جديدة</translation>
    </message>
    <message>
        <source>Edit the rule (Return)</source>
        <translation>تحرير القاعدة (مفتاح الإدخال)</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>تكرار</translation>
    </message>
    <message>
        <source>Duplicate the rules (Ctrl+D)</source>
        <translation>تكرار القواعد (Ctrl+D)</translation>
    </message>
    <message>
        <source>Delete the rules (Delete)</source>
        <translation>حذف القواعد (Delete)</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>الدخول</translation>
    </message>
    <message>
        <source>No name</source>
        <translation>بلا اسم</translation>
    </message>
    <message>
        <source>Saved Items</source>
        <translation>المحفوظات</translation>
    </message>
    <message>
        <source>Open Page</source>
        <translation>فتح الصفحة</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>ما الجديد</translation>
    </message>
    <message>
        <source>Show it in the software center, or in the browser</source>
        <translation>إظهارها في مركز البرمجيات أو في المتصفح</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>التحقق الآن</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>التحقق من وجود إصدارات جديدة</translation>
    </message>
    <message>
        <source>Open a new version&apos;s page</source>
        <translation>فتح صفحة الإصدارة الجديدة</translation>
    </message>
    <message>
        <source>This copy of Quillon does not look for new versions.</source>
        <translation>لا تبحث هذه النسخة من Quillon عن إصدارات جديدة.</translation>
    </message>
    <message>
        <source>How often</source>
        <translation>مدى التكرار</translation>
    </message>
    <message>
        <source>At once, in the software center or the browser. Quillon itself downloads and installs nothing.</source>
        <translation>فورًا، في مركز البرمجيات أو في المتصفح. لا ينزّل Quillon نفسه شيئًا ولا يثبّته.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>جارٍ التحقق…</translation>
    </message>
    <message>
        <source>Only while Quillon checks by itself</source>
        <translation>فقط عندما يتحقق Quillon بنفسه</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>مفضّل</translation>
    </message>
    <message>
        <source>Pause or Resume Timer</source>
        <translation>إيقاف المؤقّت مؤقتًا أو استئنافه</translation>
    </message>
    <message>
        <source>Open the preferences where the list of vendors is downloaded</source>
        <translation>فتح التفضيلات التي تُنزّل منها قائمة المصنّعين</translation>
    </message>
    <message>
        <source>&amp;Vendor</source>
        <translation>الم&amp;صنّع</translation>
    </message>
    <message>
        <source>Vendor of random addresses</source>
        <translation>مصنّع العناوين العشوائية</translation>
    </message>
    <message>
        <source>Type the beginning of a name, then choose from the list</source>
        <translation>اكتب بداية الاسم ثم اختر من القائمة</translation>
    </message>
    <message>
        <source>Hide vendors</source>
        <translation>إخفاء المصنّعين</translation>
    </message>
    <message>
        <source>Show vendors</source>
        <translation>إظهار المصنّعين</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>المعرّف</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Bring back the vendors from before the last update</source>
        <translation>إعادة المصنّعين كما كانوا قبل التحديث الأخير</translation>
    </message>
    <message>
        <source>The vendors from before the last update are being brought back</source>
        <translation>جارٍ إعادة المصنّعين كما كانوا قبل التحديث الأخير</translation>
    </message>
    <message>
        <source>Not while the database is being updated</source>
        <translation>غير متاح أثناء تحديث قاعدة البيانات</translation>
    </message>
    <message>
        <source>There are no vendors from before an update</source>
        <translation>لا يوجد مصنّعون من قبل تحديث</translation>
    </message>
    <message>
        <source>Not while the vendors from before are being brought back</source>
        <translation>غير متاح أثناء إعادة المصنّعين السابقين</translation>
    </message>
    <message>
        <source>Restore previous</source>
        <translation>استعادة السابق</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>تقدّم التنزيل</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>المصنّعون</translation>
    </message>
    <message>
        <source>Signal and noise are not known</source>
        <translation>الإشارة والضوضاء غير معروفتين</translation>
    </message>
    <message>
        <source>Signal %@</source>
        <translation>الإشارة ⁨%@⁩</translation>
    </message>
    <message>
        <source>Noise %@</source>
        <translation>الضوضاء ⁨%@⁩</translation>
    </message>
    <message>
        <source>Signal %@, noise %@</source>
        <translation>الإشارة ⁨%@⁩، الضوضاء ⁨%@⁩</translation>
    </message>
    <message>
        <source>Signal and noise over the last five minutes</source>
        <translation>الإشارة والضوضاء في آخر خمس دقائق</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 دقائق</translation>
    </message>
    <message>
        <source>What to search</source>
        <translation>مجال البحث</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;تطبيق</translation>
    </message>
    <message>
        <source>&amp;Randomize</source>
        <translation>تغيير عش&amp;وائي</translation>
    </message>
    <message>
        <source>A&amp;ddress</source>
        <translation>ال&amp;عنوان</translation>
    </message>
    <message>
        <source>The address in use is not the hardware address</source>
        <translation>العنوان المستخدم ليس عنوان العتاد</translation>
    </message>
    <message>
        <source>Apply address</source>
        <translation>تطبيق العنوان</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>جارٍ التطبيق…</translation>
    </message>
    <message>
        <source>Changed: the address in use is not the hardware address</source>
        <translation>مغيّر: العنوان المستخدم ليس عنوان العتاد</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits. Return applies the address.</source>
        <translation>اثنا عشر رقمًا ستّ عشريًا. يطبّق مفتاح الإدخال العنوان.</translation>
    </message>
    <message>
        <source>Gives the interface the address in the field</source>
        <translation>يعطي الواجهة العنوان الموجود في الحقل</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits, with or without colons. Return applies the address.</source>
        <translation>اثنا عشر رقمًا ستّ عشريًا، بنقطتين فاصلتين أو بدونهما. يطبّق مفتاح الإدخال العنوان.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>الإصدارة</translation>
    </message>
    <message>
        <source>The address the device was made with.</source>
        <translation>العنوان الذي صُنع به الجهاز.</translation>
    </message>
    <message>
        <source>Restore hardware address</source>
        <translation>استعادة عنوان العتاد</translation>
    </message>
    <message>
        <source>Restoring…</source>
        <translation>جارٍ الاستعادة…</translation>
    </message>
    <message>
        <source>Gives the interface the address back that it was made with</source>
        <translation>يعيد إلى الواجهة العنوان الذي صُنعت به</translation>
    </message>
    <message>
        <source>Hardware address</source>
        <translation>عنوان العتاد</translation>
    </message>
    <message>
        <source>Link active</source>
        <translation>الوصلة نشطة</translation>
    </message>
    <message>
        <source>Link inactive</source>
        <translation>الوصلة غير نشطة</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>عنوان IPv4</translation>
    </message>
    <message>
        <source>The network interface whose address is shown and changed</source>
        <translation>واجهة الشبكة التي يُعرض عنوانها ويُغيّر</translation>
    </message>
    <message>
        <source>What is the helper?</source>
        <translation>ما هي الأداة المساعدة؟</translation>
    </message>
    <message>
        <source>About the helper</source>
        <translation>عن الأداة المساعدة</translation>
    </message>
    <message>
        <source>Helper hint</source>
        <translation>تلميح عن الأداة المساعدة</translation>
    </message>
    <message>
        <source>What is new is in Preferences › Updates.</source>
        <translation>تجد الجديد في التفضيلات › التحديثات.</translation>
    </message>
    <message>
        <source>Only a random address has a vendor</source>
        <translation>للعنوان العشوائي وحده مصنّع</translation>
    </message>
    <message>
        <source>No interface is selected: there is none to choose a vendor for</source>
        <translation>لم تُحدّد واجهة: لا توجد واجهة يُختار لها مصنّع</translation>
    </message>
    <message numerus="yes">
        <source>%@ (added %@ new Identifiers)</source>
        <translation>
            <numerusform>⁨%@⁩ (المعرّفات الجديدة: ⁨%@⁩)</numerusform>
            <numerusform>⁨%@⁩ (المعرّفات الجديدة: ⁨%@⁩)</numerusform>
            <numerusform>⁨%@⁩ (المعرّفات الجديدة: ⁨%@⁩)</numerusform>
            <numerusform>⁨%@⁩ (المعرّفات الجديدة: ⁨%@⁩)</numerusform>
            <numerusform>⁨%@⁩ (المعرّفات الجديدة: ⁨%@⁩)</numerusform>
            <numerusform>⁨%@⁩ (المعرّفات الجديدة: ⁨%@⁩)</numerusform>
        </translation>
    </message>
    <message>
        <source>Getting Vendor infomation...</source>
        <translation>جارٍ جلب معلومات المصنّع...</translation>
    </message>
    <message>
        <source>No Vendor Information available...</source>
        <translation>لا تتوفّر معلومات عن المصنّع...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln were saved. Save again for more.</source>
        <translation>
            <numerusform>حُفظ %Ln. احفظ مرة أخرى للمزيد.</numerusform>
            <numerusform>حُفظ واحد. احفظ مرة أخرى للمزيد.</numerusform>
            <numerusform>حُفظ اثنان. احفظ مرة أخرى للمزيد.</numerusform>
            <numerusform>حُفظ %Ln. احفظ مرة أخرى للمزيد.</numerusform>
            <numerusform>حُفظ %Ln. احفظ مرة أخرى للمزيد.</numerusform>
            <numerusform>حُفظ %Ln. احفظ مرة أخرى للمزيد.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records selected</source>
        <translation>
            <numerusform>لم تُحدّد أي مدخلة</numerusform>
            <numerusform>حُدّدت مدخلة واحدة</numerusform>
            <numerusform>حُدّدت مدخلتان</numerusform>
            <numerusform>حُدّدت %Ln مدخلات</numerusform>
            <numerusform>حُدّدت %Ln مدخلة</numerusform>
            <numerusform>حُدّدت %Ln مدخلة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records deleted</source>
        <translation>
            <numerusform>لم تُحذف أي مدخلة</numerusform>
            <numerusform>حُذفت المدخلة</numerusform>
            <numerusform>حُذفت مدخلتان</numerusform>
            <numerusform>حُذفت %Ln مدخلات</numerusform>
            <numerusform>حُذفت %Ln مدخلة</numerusform>
            <numerusform>حُذفت %Ln مدخلة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %Ln records?</source>
        <translation>
            <numerusform>هل تُحذف %Ln مدخلة؟</numerusform>
            <numerusform>هل تُحذف المدخلة؟</numerusform>
            <numerusform>هل تُحذف مدخلتان؟</numerusform>
            <numerusform>هل تُحذف %Ln مدخلات؟</numerusform>
            <numerusform>هل تُحذف %Ln مدخلة؟</numerusform>
            <numerusform>هل تُحذف %Ln مدخلة؟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses</source>
        <translation>
            <numerusform>لا عناوين</numerusform>
            <numerusform>عنوان واحد</numerusform>
            <numerusform>عنوانان</numerusform>
            <numerusform>‏%Ln عناوين</numerusform>
            <numerusform>‏%Ln عنوانًا</numerusform>
            <numerusform>‏%Ln عنوان</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks</source>
        <translation>
            <numerusform>لا شبكات</numerusform>
            <numerusform>شبكة واحدة</numerusform>
            <numerusform>شبكتان</numerusform>
            <numerusform>‏%Ln شبكات</numerusform>
            <numerusform>‏%Ln شبكة</numerusform>
            <numerusform>‏%Ln شبكة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks added.</source>
        <translation>
            <numerusform>لم تُضف أي شبكة.</numerusform>
            <numerusform>أُضيفت شبكة واحدة.</numerusform>
            <numerusform>أُضيفت شبكتان.</numerusform>
            <numerusform>أُضيفت %Ln شبكات.</numerusform>
            <numerusform>أُضيفت %Ln شبكة.</numerusform>
            <numerusform>أُضيفت %Ln شبكة.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses added.</source>
        <translation>
            <numerusform>لم يُضف أي عنوان.</numerusform>
            <numerusform>أُضيف عنوان واحد.</numerusform>
            <numerusform>أُضيف عنوانان.</numerusform>
            <numerusform>أُضيفت %Ln عناوين.</numerusform>
            <numerusform>أُضيف %Ln عنوانًا.</numerusform>
            <numerusform>أُضيف %Ln عنوان.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records</source>
        <translation>
            <numerusform>لا مدخلات</numerusform>
            <numerusform>مدخلة واحدة</numerusform>
            <numerusform>مدخلتان</numerusform>
            <numerusform>‏%Ln مدخلات</numerusform>
            <numerusform>‏%Ln مدخلة</numerusform>
            <numerusform>‏%Ln مدخلة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%@ of %Ln records</source>
        <translation>
            <numerusform>⁨%@⁩ من %Ln مدخلة</numerusform>
            <numerusform>⁨%@⁩ من مدخلة واحدة</numerusform>
            <numerusform>⁨%@⁩ من مدخلتين</numerusform>
            <numerusform>⁨%@⁩ من %Ln مدخلات</numerusform>
            <numerusform>⁨%@⁩ من %Ln مدخلة</numerusform>
            <numerusform>⁨%@⁩ من %Ln مدخلة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On %@, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>على ⁨%@⁩، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل %n دقيقة.</numerusform>
            <numerusform>على ⁨%@⁩، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل دقيقة.</numerusform>
            <numerusform>على ⁨%@⁩، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل دقيقتين.</numerusform>
            <numerusform>على ⁨%@⁩، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل %n دقائق.</numerusform>
            <numerusform>على ⁨%@⁩، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل %n دقيقة.</numerusform>
            <numerusform>على ⁨%@⁩، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل %n دقيقة.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On any network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>على أي شبكة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل %n دقيقة.</numerusform>
            <numerusform>على أي شبكة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل دقيقة.</numerusform>
            <numerusform>على أي شبكة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل دقيقتين.</numerusform>
            <numerusform>على أي شبكة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل %n دقائق.</numerusform>
            <numerusform>على أي شبكة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل %n دقيقة.</numerusform>
            <numerusform>على أي شبكة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل %n دقيقة.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On an unknown network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>على شبكة غير معروفة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل %n دقيقة.</numerusform>
            <numerusform>على شبكة غير معروفة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل دقيقة.</numerusform>
            <numerusform>على شبكة غير معروفة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل دقيقتين.</numerusform>
            <numerusform>على شبكة غير معروفة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل %n دقائق.</numerusform>
            <numerusform>على شبكة غير معروفة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل %n دقيقة.</numerusform>
            <numerusform>على شبكة غير معروفة، تُعطى ⁨%@⁩ عنوانًا عشوائيًا جديدًا كل %n دقيقة.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln rules deleted</source>
        <translation>
            <numerusform>لم تُحذف أي قاعدة</numerusform>
            <numerusform>حُذفت القاعدة</numerusform>
            <numerusform>حُذفت قاعدتان</numerusform>
            <numerusform>حُذفت %Ln قواعد</numerusform>
            <numerusform>حُذفت %Ln قاعدة</numerusform>
            <numerusform>حُذفت %Ln قاعدة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records exported</source>
        <translation>
            <numerusform>لم تُصدّر أي مدخلة</numerusform>
            <numerusform>صُدّرت مدخلة واحدة</numerusform>
            <numerusform>صُدّرت مدخلتان</numerusform>
            <numerusform>صُدّرت %Ln مدخلات</numerusform>
            <numerusform>صُدّرت %Ln مدخلة</numerusform>
            <numerusform>صُدّرت %Ln مدخلة</numerusform>
        </translation>
    </message>
    <message>
        <source>Sign in to the account first.</source>
        <translation>سجّل الدخول إلى الحساب أولًا.</translation>
    </message>
    <message>
        <source>Enter the current passphrase.</source>
        <translation>أدخل عبارة السر الحالية.</translation>
    </message>
    <message>
        <source>Enter a new passphrase.</source>
        <translation>أدخل عبارة سر جديدة.</translation>
    </message>
    <message>
        <source>The new passphrase is the current one.</source>
        <translation>عبارة السر الجديدة هي الحالية نفسها.</translation>
    </message>
    <message>
        <source>Another computer has just changed the key file. Try again with the passphrase that holds now.</source>
        <translation>غيّر حاسوب آخر ملف المفتاح للتو. حاول مرة أخرى بعبارة السر السارية الآن.</translation>
    </message>
    <message>
        <source>The connection was lost. Either the new passphrase or the current one opens the account now.</source>
        <translation>انقطع الاتصال. تفتح الحسابَ الآن إما عبارة السر الجديدة أو السابقة.</translation>
    </message>
    <message>
        <source>Another computer has changed the passphrase at the same time. That one holds now.</source>
        <translation>غيّر حاسوب آخر عبارة السر في الوقت نفسه. عبارته هي السارية الآن.</translation>
    </message>
    <message>
        <source>This is not the current passphrase.</source>
        <translation>هذه ليست عبارة السر الحالية.</translation>
    </message>
    <message>
        <source>Another key is in the account: somebody has made it anew, or changed it. Nothing is synced until you sign in again.</source>
        <translation>في الحساب مفتاح آخر: أعاد أحد إنشاء الحساب أو غيّره. لن تجري أي مزامنة حتى تسجّل الدخول من جديد.</translation>
    </message>
    <message>
        <source>Reading the account&apos;s key file…</source>
        <translation>جارٍ قراءة ملف مفتاح الحساب…</translation>
    </message>
    <message>
        <source>Writing the account&apos;s key file…</source>
        <translation>جارٍ كتابة ملف مفتاح الحساب…</translation>
    </message>
    <message>
        <source>The passphrase was changed. Your other computers stay signed in.</source>
        <translation>غُيّرت عبارة السر. تبقى الحواسيب الأخرى مسجّلة الدخول.</translation>
    </message>
    <message>
        <source>What the network still sees</source>
        <translation>ما لا تزال الشبكة تراه</translation>
    </message>
    <message>
        <source>What the network of %@ still sees</source>
        <translation>ما لا تزال شبكة ⁨%@⁩ تراه</translation>
    </message>
    <message>
        <source>No interface is selected.</source>
        <translation>لم تُحدّد واجهة.</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>جارٍ الفحص…</translation>
    </message>
    <message>
        <source>Nothing but the address is known to tell who this is.</source>
        <translation>لا يُعرف غير العنوان شيء يكشف هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Made from the current address</source>
        <translation>مشتق من العنوان الحالي</translation>
    </message>
    <message>
        <source>Made from the hardware address</source>
        <translation>مشتق من عنوان العتاد</translation>
    </message>
    <message>
        <source>Made from another address</source>
        <translation>مشتق من عنوان آخر</translation>
    </message>
    <message>
        <source>Made for this network</source>
        <translation>مُنشأ لهذه الشبكة</translation>
    </message>
    <message>
        <source>Made for this computer</source>
        <translation>مُنشأ لهذا الحاسوب</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Changes with the address.</source>
        <translation>يتغيّر مع العنوان.</translation>
    </message>
    <message>
        <source>Changes by itself after a time.</source>
        <translation>يتغيّر تلقائيًا بعد مدة.</translation>
    </message>
    <message>
        <source>Stays the same on this network.</source>
        <translation>يبقى كما هو على هذه الشبكة.</translation>
    </message>
    <message>
        <source>Stays the same on every network.</source>
        <translation>يبقى كما هو على كل شبكة.</translation>
    </message>
    <message>
        <source>Gives the hardware address away.</source>
        <translation>يكشف عنوان العتاد.</translation>
    </message>
    <message>
        <source>Gives an earlier address, or that of another interface, away.</source>
        <translation>يكشف عنوانًا سابقًا أو عنوان واجهة أخرى.</translation>
    </message>
    <message>
        <source>Who sets it does not tell.</source>
        <translation>البرنامج الذي يحدده لا يفصح عنه.</translation>
    </message>
    <message>
        <source>Whether it changes with the address is not known.</source>
        <translation>لا يُعرف هل يتغيّر مع العنوان.</translation>
    </message>
    <message>
        <source>Kept across the change, since %@.</source>
        <translation>بقي كما هو عند التغيير، منذ ⁨%@⁩.</translation>
    </message>
    <message>
        <source>To show less: %@</source>
        <translation>لإظهار معلومات أقل: ⁨%@⁩</translation>
    </message>
    <message>
        <source>To show less, in %@: %@</source>
        <translation>لإظهار معلومات أقل، في ⁨%@⁩: ⁨%@⁩</translation>
    </message>
    <message>
        <source>Name sent with DHCP</source>
        <translation>الاسم المرسل عبر DHCP</translation>
    </message>
    <message>
        <source>DHCP client identifier</source>
        <translation>معرّف عميل DHCP</translation>
    </message>
    <message>
        <source>DHCPv6 identifier (DUID)</source>
        <translation>معرّف DHCPv6 (DUID)</translation>
    </message>
    <message>
        <source>IPv6 address</source>
        <translation>عنوان IPv6</translation>
    </message>
    <message>
        <source>More IPv6 addresses</source>
        <translation>عناوين IPv6 أخرى</translation>
    </message>
    <message>
        <source>Name told by mDNS</source>
        <translation>الاسم المعلن عبر mDNS</translation>
    </message>
    <message>
        <source>Name told by LLMNR</source>
        <translation>الاسم المعلن عبر LLMNR</translation>
    </message>
    <message>
        <source>Login name (802.1X)</source>
        <translation>اسم الدخول (802.1X)</translation>
    </message>
    <message>
        <source>Change Passphrase…</source>
        <translation>تغيير عبارة السر…</translation>
    </message>
    <message>
        <source>Gives the account another passphrase, for all computers</source>
        <translation>يعطي الحساب عبارة سر أخرى، لكل الحواسيب</translation>
    </message>
    <message>
        <source>Change Passphrase</source>
        <translation>تغيير عبارة السر</translation>
    </message>
    <message>
        <source>From then on the account is opened by the new passphrase</source>
        <translation>بعد ذلك تفتح عبارة السر الجديدة الحساب</translation>
    </message>
    <message>
        <source>Current passphrase</source>
        <translation>عبارة السر الحالية</translation>
    </message>
    <message>
        <source>The one with which you signed in</source>
        <translation>المستخدمة عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>New passphrase</source>
        <translation>عبارة السر الجديدة</translation>
    </message>
    <message>
        <source>At least eight characters. Nobody can tell you later what you typed.</source>
        <translation>ثمانية محارف على الأقل. لن يستطيع أحد لاحقًا معرفة ما كُتب.</translation>
    </message>
    <message>
        <source>Repeat new passphrase</source>
        <translation>تكرار عبارة السر الجديدة</translation>
    </message>
    <message>
        <source>The same once more</source>
        <translation>العبارة نفسها مرة أخرى</translation>
    </message>
    <message>
        <source>Your other computers stay signed in. Copies of the account that somebody has made before still open with the current passphrase.</source>
        <translation>تبقى الحواسيب الأخرى مسجّلة الدخول. تظل نسخ الحساب التي أُنشئت سابقًا تُفتح بعبارة السر الحالية.</translation>
    </message>
</context>
</TS>
