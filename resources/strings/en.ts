<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <extracomment>The panel&apos;s name in the print dialog&apos;s list of panels.</extracomment>
        <translation>Cut Options</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <extracomment>Check box in front of a number field; RS_Labels follows the field.</extracomment>
        <translation>Cut every</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <extracomment>Follows the number field of RS_CutAtEvery.</extracomment>
        <translation>labels</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <translation>Cut at end</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <translation>Auto cut</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <extracomment>Cuts the label but not its backing, so that it is easy to peel off.</extracomment>
        <translation>Half cut</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <extracomment>No blank tape between this print job and the next one.</extracomment>
        <translation>Chain printing</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <extracomment>For tape that the printer cannot cut.</extracomment>
        <translation>Special tape (no cutting)</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <extracomment>Printed between labels to show where to cut by hand.</extracomment>
        <translation>Cut marks</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <translation>Mirror printing</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <translation>Remove blank space</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <extracomment>The RS_STitle texts are titles in the print dialog&apos;s summary.</extracomment>
        <translation>Cut labels</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <translation>Cut at end</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <translation>Auto cut</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <translation>Half cut</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <translation>Chain printing</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <translation>Special tape</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <translation>Cut marks</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <translation>Mirror printing</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <translation>Remove blank space</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <extracomment>Warning when auto cut is turned on.</extracomment>
        <translation>Heat-shrink tube is loaded. It should not be cut with auto cut: the cutter may jam or wear out. Turn auto cut off and cut the tube with scissors.</translation>
    </message>
    <message>
        <source>RS_Presets</source>
        <extracomment>Name of the list of combinations, for assistive technology and as tool tip.</extracomment>
        <translation>Ready-made combination</translation>
    </message>
    <message>
        <source>RS_Preview</source>
        <extracomment>Name of the picture, for assistive technology.</extracomment>
        <translation>Picture of the strip</translation>
    </message>
    <message>
        <source>RS_CutEveryCount</source>
        <extracomment>Name of the number field, for assistive technology and as tool tip.</extracomment>
        <translation>Number of labels between cuts</translation>
    </message>
    <message>
        <source>RS_Increase</source>
        <extracomment>Upper half of the stepper next to the number field.</extracomment>
        <translation>Increase</translation>
    </message>
    <message>
        <source>RS_Decrease</source>
        <extracomment>Lower half of the stepper next to the number field.</extracomment>
        <translation>Decrease</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOffOff</source>
        <extracomment>The RS_Preset texts name ready-made combinations.</extracomment>
        <translation>No cutting</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOnOff</source>
        <translation>Cut at end</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOffOff</source>
        <translation>Cut between labels</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOnOff</source>
        <translation>Cut between labels and at end</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOffOff</source>
        <translation>No automatic cutting</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOnOff</source>
        <translation>Chain printing</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOffOff</source>
        <translation>Half cut</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOnOff</source>
        <translation>Half cut and chain printing</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOffOff</source>
        <translation>Auto cut</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOnOff</source>
        <translation>Auto cut and chain printing</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOffOff</source>
        <translation>Auto cut and half cut</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOnOff</source>
        <translation>Auto cut, half cut and chain printing</translation>
    </message>
    <message>
        <source>RS_Preset_SPMROnOff</source>
        <translation>Special tape</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOffOff</source>
        <translation>Cut marks</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOnOff</source>
        <translation>Cut marks and chain printing</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOnOff</source>
        <translation>Chain printing</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOffOff</source>
        <translation>No cut marks</translation>
    </message>
</context>
</TS>
