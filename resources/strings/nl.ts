<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <translation>Snijopties</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <translation>Snijden na elke</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <translation>labels</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <translation>Aan het einde snijden</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <translation>Automatisch snijden</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <translation>Half snijden</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <translation>Kettingafdruk</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <translation>Speciale tape (niet snijden)</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <translation>Snijtekens</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <translation>Gespiegeld afdrukken</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <translation>Lege ruimte verwijderen</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <translation>Labels snijden</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <translation>Aan het einde snijden</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <translation>Automatisch snijden</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <translation>Half snijden</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <translation>Kettingafdruk</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <translation>Speciale tape</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <translation>Snijtekens</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <translation>Gespiegeld afdrukken</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <translation>Lege ruimte verwijderen</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <translation>Er is krimpkous geplaatst. Deze mag niet automatisch worden gesneden, omdat het snijmechanisme kan vastlopen of slijten. Schakel automatisch snijden uit en knip de krimpkous met een schaar.</translation>
    </message>
    <message>
        <source>RS_Presets</source>
        <translation>Vooraf ingestelde combinatie</translation>
    </message>
    <message>
        <source>RS_Preview</source>
        <translation>Afbeelding van de strook</translation>
    </message>
    <message>
        <source>RS_CutEveryCount</source>
        <translation>Aantal labels tussen twee sneden</translation>
    </message>
    <message>
        <source>RS_Increase</source>
        <translation>Verhogen</translation>
    </message>
    <message>
        <source>RS_Decrease</source>
        <translation>Verlagen</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOffOff</source>
        <translation>Niet snijden</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOnOff</source>
        <translation>Aan het einde snijden</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOffOff</source>
        <translation>Tussen de labels snijden</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOnOff</source>
        <translation>Tussen de labels en aan het einde snijden</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOffOff</source>
        <translation>Niet automatisch snijden</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOnOff</source>
        <translation>Kettingafdruk</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOffOff</source>
        <translation>Half snijden</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOnOff</source>
        <translation>Half snijden en kettingafdruk</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOffOff</source>
        <translation>Automatisch snijden</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOnOff</source>
        <translation>Automatisch snijden en kettingafdruk</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOffOff</source>
        <translation>Automatisch snijden en half snijden</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOnOff</source>
        <translation>Automatisch snijden, half snijden en kettingafdruk</translation>
    </message>
    <message>
        <source>RS_Preset_SPMROnOff</source>
        <translation>Speciale tape</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOffOff</source>
        <translation>Snijtekens</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOnOff</source>
        <translation>Snijtekens en kettingafdruk</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOnOff</source>
        <translation>Kettingafdruk</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOffOff</source>
        <translation>Geen snijtekens</translation>
    </message>
    <message>
        <source>RS_Help_CutEvery</source>
        <translation>Snijdt de strook telkens na dit aantal labels af.</translation>
    </message>
    <message>
        <source>RS_Help_CutAtEnd</source>
        <translation>Snijdt de strook na het laatste label af.</translation>
    </message>
    <message>
        <source>RS_Help_Mirror</source>
        <translation>Drukt in spiegelschrift af, om door transparante tape of glas heen te lezen.</translation>
    </message>
    <message>
        <source>RS_Help_AutoCut</source>
        <translation>De printer snijdt de labels zelf af.</translation>
    </message>
    <message>
        <source>RS_Help_HalfCut</source>
        <translation>Snijdt het label maar niet het rugpapier, zodat het gemakkelijk loslaat.</translation>
    </message>
    <message>
        <source>RS_Help_ChainPrint</source>
        <translation>Laat geen lege tape tussen deze afdruktaak en de volgende.</translation>
    </message>
    <message>
        <source>RS_Help_SpecialTape</source>
        <translation>Voor tape die de printer niet kan snijden. Schakelt half snijden en het snijden tussen de labels uit.</translation>
    </message>
    <message>
        <source>RS_Help_RemoveBlkSpace</source>
        <translation>Laat de lege tape voor en na de afdruk weg.</translation>
    </message>
    <message>
        <source>RS_Help_CutMark</source>
        <translation>Drukt tussen de labels tekens af die aangeven waar u met de hand kunt snijden.</translation>
    </message>
    <message>
        <source>RS_Help_Count</source>
        <translation>Een getal van %1 tot en met %2.</translation>
    </message>
    <message>
        <source>RS_Help_Presets</source>
        <translation>Vinkt de selectievakjes van een gebruikelijke combinatie van de opties aan.</translation>
    </message>
    <message>
        <source>RS_Why_Tape</source>
        <translation>Niet beschikbaar bij deze tape.</translation>
    </message>
    <message>
        <source>RS_Why_Printer</source>
        <translation>Niet beschikbaar bij deze printer.</translation>
    </message>
    <message>
        <source>RS_Why_Together</source>
        <translation>Niet beschikbaar in combinatie met ‘%1’.</translation>
    </message>
    <message>
        <source>RS_Why_Needs</source>
        <translation>Beschikbaar wanneer ‘%1’ is aangevinkt.</translation>
    </message>
    <message>
        <source>RS_Why_Reopen</source>
        <translation>Niet beschikbaar sinds de tape is gewisseld. Open het afdrukvenster opnieuw om deze optie te gebruiken.</translation>
    </message>
    <message>
        <source>RS_Strip_Uncut</source>
        <translation>De labels blijven bij elkaar op één strook, die niet wordt gesneden.</translation>
    </message>
    <message>
        <source>RS_Strip_Cut</source>
        <translation>De strook wordt tussen de labels gesneden.</translation>
    </message>
    <message>
        <source>RS_Strip_Count</source>
        <translation>Aantal labels tussen twee sneden: %1.</translation>
    </message>
    <message>
        <source>RS_Strip_CutAtEnd</source>
        <translation>De strook wordt aan het einde afgesneden.</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <translation>Het is een speciale tape, die niet tussen de labels wordt gesneden.</translation>
    </message>
    <message>
        <source>RS_Strip_HalfCut</source>
        <translation>De labels worden gesneden maar het rugpapier niet, zodat ze gemakkelijk loslaten.</translation>
    </message>
    <message>
        <source>RS_Strip_ChainPrint</source>
        <translation>Het laatste label blijft tot de volgende afdruktaak in de printer.</translation>
    </message>
    <message>
        <source>RS_Strip_CutMark</source>
        <translation>Tekens tussen de labels geven aan waar u met de hand kunt snijden.</translation>
    </message>
    <message>
        <source>RS_Strip_RemoveBlkSpace</source>
        <translation>Er is geen lege tape voor en na de afdruk.</translation>
    </message>
    <message>
        <source>RS_Strip_Mirror</source>
        <translation>De afdruk is in spiegelschrift.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <translation>Snijden na elke</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <translation>Aan het einde snijden</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <translation>Gespiegeld afdrukken</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <translation>Automatisch snijden</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <translation>Half snijden</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <translation>Kettingafdruk</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <translation>Speciale tape</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <translation>Lege ruimte verwijderen</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <translation>Snijtekens</translation>
    </message>
</context>
</TS>
