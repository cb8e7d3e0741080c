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
    <message>
        <source>RS_Help_CutEvery</source>
        <extracomment>The RS_Help texts are tool tips of the check boxes, and are read out by assistive technology.</extracomment>
        <translation>Cuts the strip each time this number of labels has been printed.</translation>
    </message>
    <message>
        <source>RS_Help_CutAtEnd</source>
        <translation>Cuts the strip after the last label.</translation>
    </message>
    <message>
        <source>RS_Help_Mirror</source>
        <translation>Prints in mirror writing, to be read through transparent tape or glass.</translation>
    </message>
    <message>
        <source>RS_Help_AutoCut</source>
        <translation>Lets the printer cut the labels off by itself.</translation>
    </message>
    <message>
        <source>RS_Help_HalfCut</source>
        <translation>Cuts the label but not its backing, so that it is easy to peel off.</translation>
    </message>
    <message>
        <source>RS_Help_ChainPrint</source>
        <translation>Leaves no blank tape between this print job and the next one.</translation>
    </message>
    <message>
        <source>RS_Help_SpecialTape</source>
        <translation>For tape that the printer cannot cut. Turns off half cuts and the cuts between labels.</translation>
    </message>
    <message>
        <source>RS_Help_RemoveBlkSpace</source>
        <translation>Leaves out the blank tape before and after the print.</translation>
    </message>
    <message>
        <source>RS_Help_CutMark</source>
        <translation>Prints marks between the labels that show where to cut by hand.</translation>
    </message>
    <message>
        <source>RS_Help_Count</source>
        <extracomment>Tool tip of the number field. %1 is the smallest number, %2 the largest.</extracomment>
        <translation>A number from %1 to %2.</translation>
    </message>
    <message>
        <source>RS_Help_Presets</source>
        <extracomment>Describes the list of ready-made combinations to assistive technology.</extracomment>
        <translation>Selects the check boxes of a usual combination of the options.</translation>
    </message>
    <message>
        <source>RS_Why_Tape</source>
        <extracomment>The RS_Why texts are tool tips of a check box or menu item that is greyed: why it cannot be used.</extracomment>
        <translation>Not available on this tape.</translation>
    </message>
    <message>
        <source>RS_Why_Printer</source>
        <translation>Not available for this printer.</translation>
    </message>
    <message>
        <source>RS_Why_Together</source>
        <extracomment>%1 is the text of another check box, which is ticked.</extracomment>
        <translation>Not available together with “%1”.</translation>
    </message>
    <message>
        <source>RS_Why_Needs</source>
        <extracomment>%1 is the text of another check box, which is not ticked.</extracomment>
        <translation>Available when “%1” is selected.</translation>
    </message>
    <message>
        <source>RS_Why_Reopen</source>
        <extracomment>The check box stays greyed although the tape was changed back.</extracomment>
        <translation>Not available since the tape was changed. Open the print dialog again to use it.</translation>
    </message>
    <message>
        <source>RS_Strip_Uncut</source>
        <extracomment>The RS_Strip texts are sentences that tell people who do not see the picture what the printed strip will look like. Those that apply are read out one after the other.</extracomment>
        <translation>The labels stay together on one strip, which is not cut.</translation>
    </message>
    <message>
        <source>RS_Strip_Cut</source>
        <translation>The strip is cut between the labels.</translation>
    </message>
    <message>
        <source>RS_Strip_Count</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Number of labels between cuts: %1.</translation>
    </message>
    <message>
        <source>RS_Strip_CutAtEnd</source>
        <translation>The strip is cut at its end.</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <translation>It is a special tape, which is not cut between the labels.</translation>
    </message>
    <message>
        <source>RS_Strip_HalfCut</source>
        <translation>The labels are cut but their backing is not, so that they are easy to peel off.</translation>
    </message>
    <message>
        <source>RS_Strip_ChainPrint</source>
        <translation>The last label stays in the printer until the next print job.</translation>
    </message>
    <message>
        <source>RS_Strip_CutMark</source>
        <translation>Marks between the labels show where to cut by hand.</translation>
    </message>
    <message>
        <source>RS_Strip_RemoveBlkSpace</source>
        <translation>There is no blank tape before and after the print.</translation>
    </message>
    <message>
        <source>RS_Strip_Mirror</source>
        <translation>The print is in mirror writing.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <extracomment>The texts without RS_ are those of the sample printers&apos; options. This one stands in front of a number field; RS_Labels follows the field.</extracomment>
        <translation>Cut Every</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <translation>Cut at End</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <translation>Mirror Printing</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <translation>Auto Cut</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <translation>Half Cut</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <translation>Chain Printing</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <translation>Special Tape</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <translation>Remove Blank Space</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <translation>Cut Mark</translation>
    </message>
</context>
</TS>
