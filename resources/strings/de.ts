<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <translation>Schnittoptionen</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <translation>Schnitt alle</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <translation>Am Ende schneiden</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <translation>Automatischer Schnitt</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <translation>Halbschnitt</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <translation>Kettendruck</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <translation>Spezialband (kein Schnitt)</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <translation>Schnittmarken</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <translation>Spiegeldruck</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <translation>Leerraum entfernen</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <translation>Etiketten schneiden</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <translation>Am Ende schneiden</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <translation>Automatischer Schnitt</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <translation>Halbschnitt</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <translation>Kettendruck</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <translation>Spezialband</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <translation>Schnittmarken</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <translation>Spiegeldruck</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <translation>Leerraum entfernen</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <translation>Es ist Schrumpfschlauch eingelegt. Er sollte nicht automatisch geschnitten werden, da das Schneidwerk blockieren oder verschleißen kann. Schalten Sie den automatischen Schnitt aus und schneiden Sie den Schlauch mit einer Schere.</translation>
    </message>
    <message>
        <source>RS_Presets</source>
        <translation>Vordefinierte Kombination</translation>
    </message>
    <message>
        <source>RS_Preview</source>
        <translation>Bild des Streifens</translation>
    </message>
    <message>
        <source>RS_CutEveryCount</source>
        <translation>Anzahl der Etiketten zwischen zwei Schnitten</translation>
    </message>
    <message>
        <source>RS_Increase</source>
        <translation>Erhöhen</translation>
    </message>
    <message>
        <source>RS_Decrease</source>
        <translation>Verringern</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOffOff</source>
        <translation>Kein Schnitt</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOnOff</source>
        <translation>Am Ende schneiden</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOffOff</source>
        <translation>Zwischen den Etiketten schneiden</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOnOff</source>
        <translation>Zwischen den Etiketten und am Ende schneiden</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOffOff</source>
        <translation>Kein automatischer Schnitt</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOnOff</source>
        <translation>Kettendruck</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOffOff</source>
        <translation>Halbschnitt</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOnOff</source>
        <translation>Halbschnitt und Kettendruck</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOffOff</source>
        <translation>Automatischer Schnitt</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOnOff</source>
        <translation>Automatischer Schnitt und Kettendruck</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOffOff</source>
        <translation>Automatischer Schnitt und Halbschnitt</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOnOff</source>
        <translation>Automatischer Schnitt, Halbschnitt und Kettendruck</translation>
    </message>
    <message>
        <source>RS_Preset_SPMROnOff</source>
        <translation>Spezialband</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOffOff</source>
        <translation>Schnittmarken</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOnOff</source>
        <translation>Schnittmarken und Kettendruck</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOnOff</source>
        <translation>Kettendruck</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOffOff</source>
        <translation>Keine Schnittmarken</translation>
    </message>
    <message>
        <source>RS_Help_CutEvery</source>
        <translation>Schneidet den Streifen jeweils nach der angegebenen Anzahl von Etiketten ab.</translation>
    </message>
    <message>
        <source>RS_Help_CutAtEnd</source>
        <translation>Schneidet den Streifen nach dem letzten Etikett ab.</translation>
    </message>
    <message>
        <source>RS_Help_Mirror</source>
        <translation>Druckt in Spiegelschrift, die durch transparentes Band oder Glas gelesen wird.</translation>
    </message>
    <message>
        <source>RS_Help_AutoCut</source>
        <translation>Der Drucker schneidet die Etiketten selbst ab.</translation>
    </message>
    <message>
        <source>RS_Help_HalfCut</source>
        <translation>Schneidet das Etikett, aber nicht das Trägermaterial, sodass es sich leicht abziehen lässt.</translation>
    </message>
    <message>
        <source>RS_Help_ChainPrint</source>
        <translation>Lässt zwischen diesem und dem nächsten Druckauftrag kein leeres Band.</translation>
    </message>
    <message>
        <source>RS_Help_SpecialTape</source>
        <translation>Für Band, das der Drucker nicht schneiden kann. Schaltet Halbschnitte und die Schnitte zwischen den Etiketten aus.</translation>
    </message>
    <message>
        <source>RS_Help_RemoveBlkSpace</source>
        <translation>Lässt das leere Band vor und nach dem Druck weg.</translation>
    </message>
    <message>
        <source>RS_Help_CutMark</source>
        <translation>Druckt zwischen den Etiketten Marken, die zeigen, wo von Hand geschnitten wird.</translation>
    </message>
    <message>
        <source>RS_Help_Count</source>
        <translation>Eine Zahl von %1 bis %2.</translation>
    </message>
    <message>
        <source>RS_Help_Presets</source>
        <translation>Aktiviert die Kontrollkästchen einer üblichen Kombination der Optionen.</translation>
    </message>
    <message>
        <source>RS_Why_Tape</source>
        <translation>Bei diesem Band nicht verfügbar.</translation>
    </message>
    <message>
        <source>RS_Why_Printer</source>
        <translation>Bei diesem Drucker nicht verfügbar.</translation>
    </message>
    <message>
        <source>RS_Why_Together</source>
        <translation>Nicht zusammen mit „%1“ verfügbar.</translation>
    </message>
    <message>
        <source>RS_Why_Needs</source>
        <translation>Verfügbar, wenn „%1“ aktiviert ist.</translation>
    </message>
    <message>
        <source>RS_Why_Reopen</source>
        <translation>Nicht verfügbar, seit das Band gewechselt wurde. Öffnen Sie den Druckdialog erneut, um die Option zu verwenden.</translation>
    </message>
    <message>
        <source>RS_Strip_Uncut</source>
        <translation>Die Etiketten bleiben auf einem Streifen zusammen, der nicht geschnitten wird.</translation>
    </message>
    <message>
        <source>RS_Strip_Cut</source>
        <translation>Der Streifen wird zwischen den Etiketten geschnitten.</translation>
    </message>
    <message>
        <source>RS_Strip_Count</source>
        <translation>Anzahl der Etiketten zwischen zwei Schnitten: %1.</translation>
    </message>
    <message>
        <source>RS_Strip_CutAtEnd</source>
        <translation>Der Streifen wird am Ende abgeschnitten.</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <translation>Es ist ein Spezialband, das zwischen den Etiketten nicht geschnitten wird.</translation>
    </message>
    <message>
        <source>RS_Strip_HalfCut</source>
        <translation>Die Etiketten werden geschnitten, ihr Trägermaterial aber nicht, sodass sie sich leicht abziehen lassen.</translation>
    </message>
    <message>
        <source>RS_Strip_ChainPrint</source>
        <translation>Das letzte Etikett bleibt bis zum nächsten Druckauftrag im Drucker.</translation>
    </message>
    <message>
        <source>RS_Strip_CutMark</source>
        <translation>Marken zwischen den Etiketten zeigen, wo von Hand geschnitten wird.</translation>
    </message>
    <message>
        <source>RS_Strip_RemoveBlkSpace</source>
        <translation>Vor und nach dem Druck ist kein leeres Band.</translation>
    </message>
    <message>
        <source>RS_Strip_Mirror</source>
        <translation>Der Druck ist in Spiegelschrift.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <translation>Schnitt alle</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <translation>Am Ende schneiden</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <translation>Spiegeldruck</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <translation>Automatischer Schnitt</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <translation>Halbschnitt</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <translation>Kettendruck</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <translation>Spezialband</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <translation>Leerraum entfernen</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <translation>Schnittmarken</translation>
    </message>
</context>
</TS>
