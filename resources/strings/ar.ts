<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <translation>خيارات القص</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <translation>القص كل</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <translation>ملصقات</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <translation>القص في النهاية</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <translation>القص التلقائي</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <translation>القص النصفي</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <translation>الطباعة المتسلسلة</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <translation>شريط خاص (دون قص)</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <translation>علامات القص</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <translation>الطباعة المعكوسة</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <translation>إزالة المساحة الفارغة</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <translation>قص الملصقات</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <translation>القص في النهاية</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <translation>القص التلقائي</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <translation>القص النصفي</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <translation>الطباعة المتسلسلة</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <translation>شريط خاص</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <translation>علامات القص</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <translation>الطباعة المعكوسة</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <translation>إزالة المساحة الفارغة</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <translation>تم تحميل أنبوب ينكمش بالحرارة. لا ينبغي قصه تلقائيًا، فقد تنحشر أداة القص أو تتآكل. أوقف القص التلقائي وقص الأنبوب بالمقص.</translation>
    </message>
    <message>
        <source>RS_Presets</source>
        <translation>مجموعة خيارات جاهزة</translation>
    </message>
    <message>
        <source>RS_Preview</source>
        <translation>صورة الشريط</translation>
    </message>
    <message>
        <source>RS_CutEveryCount</source>
        <translation>عدد الملصقات بين كل عمليتي قص</translation>
    </message>
    <message>
        <source>RS_Increase</source>
        <translation>زيادة</translation>
    </message>
    <message>
        <source>RS_Decrease</source>
        <translation>إنقاص</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOffOff</source>
        <translation>دون قص</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOnOff</source>
        <translation>القص في النهاية</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOffOff</source>
        <translation>القص بين الملصقات</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOnOff</source>
        <translation>القص بين الملصقات وفي النهاية</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOffOff</source>
        <translation>دون قص تلقائي</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOnOff</source>
        <translation>الطباعة المتسلسلة</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOffOff</source>
        <translation>القص النصفي</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOnOff</source>
        <translation>القص النصفي والطباعة المتسلسلة</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOffOff</source>
        <translation>القص التلقائي</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOnOff</source>
        <translation>القص التلقائي والطباعة المتسلسلة</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOffOff</source>
        <translation>القص التلقائي والقص النصفي</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOnOff</source>
        <translation>القص التلقائي والقص النصفي والطباعة المتسلسلة</translation>
    </message>
    <message>
        <source>RS_Preset_SPMROnOff</source>
        <translation>شريط خاص</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOffOff</source>
        <translation>علامات القص</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOnOff</source>
        <translation>علامات القص والطباعة المتسلسلة</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOnOff</source>
        <translation>الطباعة المتسلسلة</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOffOff</source>
        <translation>دون علامات قص</translation>
    </message>
    <message>
        <source>RS_Help_CutEvery</source>
        <translation>يقص الشريط بعد كل عدد محدد من الملصقات.</translation>
    </message>
    <message>
        <source>RS_Help_CutAtEnd</source>
        <translation>يقص الشريط بعد الملصق الأخير.</translation>
    </message>
    <message>
        <source>RS_Help_Mirror</source>
        <translation>يطبع بشكل معكوس ليُقرأ من خلال شريط شفاف أو زجاج.</translation>
    </message>
    <message>
        <source>RS_Help_AutoCut</source>
        <translation>تقص الطابعة الملصقات بنفسها.</translation>
    </message>
    <message>
        <source>RS_Help_HalfCut</source>
        <translation>يقص الملصق دون الطبقة الخلفية ليسهل نزعه.</translation>
    </message>
    <message>
        <source>RS_Help_ChainPrint</source>
        <translation>لا يترك شريطًا فارغًا بين مهمة الطباعة هذه والمهمة التالية.</translation>
    </message>
    <message>
        <source>RS_Help_SpecialTape</source>
        <translation>للشريط الذي لا تستطيع الطابعة قصه. يوقف القص النصفي والقص بين الملصقات.</translation>
    </message>
    <message>
        <source>RS_Help_RemoveBlkSpace</source>
        <translation>يحذف الشريط الفارغ قبل الطباعة وبعدها.</translation>
    </message>
    <message>
        <source>RS_Help_CutMark</source>
        <translation>يطبع بين الملصقات علامات تبين موضع القص باليد.</translation>
    </message>
    <message>
        <source>RS_Help_Count</source>
        <translation>عدد من %1 إلى %2.</translation>
    </message>
    <message>
        <source>RS_Help_Presets</source>
        <translation>يحدد خانات مجموعة شائعة من الخيارات.</translation>
    </message>
    <message>
        <source>RS_Why_Tape</source>
        <translation>غير متاح مع هذا الشريط.</translation>
    </message>
    <message>
        <source>RS_Why_Printer</source>
        <translation>غير متاح مع هذه الطابعة.</translation>
    </message>
    <message>
        <source>RS_Why_Together</source>
        <translation>غير متاح مع «%1» في الوقت نفسه.</translation>
    </message>
    <message>
        <source>RS_Why_Needs</source>
        <translation>متاح عند تحديد «%1».</translation>
    </message>
    <message>
        <source>RS_Why_Reopen</source>
        <translation>غير متاح منذ تغيير الشريط. افتح مربع حوار الطباعة من جديد لاستخدام هذا الخيار.</translation>
    </message>
    <message>
        <source>RS_Strip_Uncut</source>
        <translation>تبقى الملصقات معًا على شريط واحد لا يُقص.</translation>
    </message>
    <message>
        <source>RS_Strip_Cut</source>
        <translation>يُقص الشريط بين الملصقات.</translation>
    </message>
    <message>
        <source>RS_Strip_Count</source>
        <translation>عدد الملصقات بين كل عمليتي قص: %1.</translation>
    </message>
    <message>
        <source>RS_Strip_CutAtEnd</source>
        <translation>يُقص الشريط في نهايته.</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <translation>هذا شريط خاص لا يُقص بين الملصقات.</translation>
    </message>
    <message>
        <source>RS_Strip_HalfCut</source>
        <translation>تُقص الملصقات دون طبقتها الخلفية ليسهل نزعها.</translation>
    </message>
    <message>
        <source>RS_Strip_ChainPrint</source>
        <translation>يبقى الملصق الأخير في الطابعة حتى مهمة الطباعة التالية.</translation>
    </message>
    <message>
        <source>RS_Strip_CutMark</source>
        <translation>تبين العلامات بين الملصقات موضع القص باليد.</translation>
    </message>
    <message>
        <source>RS_Strip_RemoveBlkSpace</source>
        <translation>لا يوجد شريط فارغ قبل الطباعة وبعدها.</translation>
    </message>
    <message>
        <source>RS_Strip_Mirror</source>
        <translation>الطباعة معكوسة.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <translation>القص كل</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <translation>القص في النهاية</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <translation>الطباعة المعكوسة</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <translation>القص التلقائي</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <translation>القص النصفي</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <translation>الطباعة المتسلسلة</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <translation>شريط خاص</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <translation>إزالة المساحة الفارغة</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <translation>علامات القص</translation>
    </message>
</context>
</TS>
