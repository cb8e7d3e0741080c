<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <translation>절단 옵션</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <translation>절단 간격</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <translation>장마다</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <translation>마지막에 절단</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <translation>자동 절단</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <translation>반절단</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <translation>체인 인쇄</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <translation>특수 테이프(절단 안 함)</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <translation>절단 표시</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <translation>좌우 반전 인쇄</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <translation>빈 공간 제거</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <translation>라벨 절단</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <translation>마지막에 절단</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <translation>자동 절단</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <translation>반절단</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <translation>체인 인쇄</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <translation>특수 테이프</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <translation>절단 표시</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <translation>좌우 반전 인쇄</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <translation>빈 공간 제거</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <translation>열수축 튜브가 장착되어 있습니다. 자동 절단을 사용하면 커터가 걸리거나 마모될 수 있습니다. 자동 절단을 끄고 튜브를 가위로 자르십시오.</translation>
    </message>
    <message>
        <source>RS_Presets</source>
        <translation>미리 정의된 조합</translation>
    </message>
    <message>
        <source>RS_Preview</source>
        <translation>출력 결과 그림</translation>
    </message>
    <message>
        <source>RS_CutEveryCount</source>
        <translation>절단 사이의 라벨 수</translation>
    </message>
    <message>
        <source>RS_Increase</source>
        <translation>늘리기</translation>
    </message>
    <message>
        <source>RS_Decrease</source>
        <translation>줄이기</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOffOff</source>
        <translation>절단 안 함</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOnOff</source>
        <translation>마지막에 절단</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOffOff</source>
        <translation>라벨 사이에서 절단</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOnOff</source>
        <translation>라벨 사이와 마지막에 절단</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOffOff</source>
        <translation>자동 절단 안 함</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOnOff</source>
        <translation>체인 인쇄</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOffOff</source>
        <translation>반절단</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOnOff</source>
        <translation>반절단 및 체인 인쇄</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOffOff</source>
        <translation>자동 절단</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOnOff</source>
        <translation>자동 절단 및 체인 인쇄</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOffOff</source>
        <translation>자동 절단 및 반절단</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOnOff</source>
        <translation>자동 절단, 반절단 및 체인 인쇄</translation>
    </message>
    <message>
        <source>RS_Preset_SPMROnOff</source>
        <translation>특수 테이프</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOffOff</source>
        <translation>절단 표시</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOnOff</source>
        <translation>절단 표시 및 체인 인쇄</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOnOff</source>
        <translation>체인 인쇄</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOffOff</source>
        <translation>절단 표시 없음</translation>
    </message>
    <message>
        <source>RS_Help_CutEvery</source>
        <translation>지정한 수의 라벨마다 테이프를 절단합니다.</translation>
    </message>
    <message>
        <source>RS_Help_CutAtEnd</source>
        <translation>마지막 라벨 뒤에서 테이프를 절단합니다.</translation>
    </message>
    <message>
        <source>RS_Help_Mirror</source>
        <translation>투명 테이프나 유리를 통해 읽을 수 있도록 좌우를 반전하여 인쇄합니다.</translation>
    </message>
    <message>
        <source>RS_Help_AutoCut</source>
        <translation>프린터가 라벨을 자동으로 절단합니다.</translation>
    </message>
    <message>
        <source>RS_Help_HalfCut</source>
        <translation>라벨만 절단하고 이형지는 남겨 두어 쉽게 떼어 낼 수 있습니다.</translation>
    </message>
    <message>
        <source>RS_Help_ChainPrint</source>
        <translation>이 인쇄 작업과 다음 인쇄 작업 사이에 빈 테이프를 남기지 않습니다.</translation>
    </message>
    <message>
        <source>RS_Help_SpecialTape</source>
        <translation>프린터가 절단할 수 없는 테이프에 사용합니다. 반절단과 라벨 사이의 절단이 꺼집니다.</translation>
    </message>
    <message>
        <source>RS_Help_RemoveBlkSpace</source>
        <translation>인쇄 앞뒤의 빈 테이프를 없앱니다.</translation>
    </message>
    <message>
        <source>RS_Help_CutMark</source>
        <translation>손으로 자를 위치를 알려 주는 표시를 라벨 사이에 인쇄합니다.</translation>
    </message>
    <message>
        <source>RS_Help_Count</source>
        <translation>%1에서 %2까지의 숫자입니다.</translation>
    </message>
    <message>
        <source>RS_Help_Presets</source>
        <translation>자주 쓰는 옵션 조합의 확인란을 선택합니다.</translation>
    </message>
    <message>
        <source>RS_Why_Tape</source>
        <translation>이 테이프에서는 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>RS_Why_Printer</source>
        <translation>이 프린터에서는 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>RS_Why_Together</source>
        <translation>‘%1’ 옵션과 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>RS_Why_Needs</source>
        <translation>‘%1’ 옵션을 선택하면 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>RS_Why_Reopen</source>
        <translation>테이프가 변경되어 사용할 수 없습니다. 사용하려면 인쇄 대화 상자를 다시 여십시오.</translation>
    </message>
    <message>
        <source>RS_Strip_Uncut</source>
        <translation>라벨이 절단되지 않고 한 줄로 이어져 있습니다.</translation>
    </message>
    <message>
        <source>RS_Strip_Cut</source>
        <translation>라벨 사이에서 절단됩니다.</translation>
    </message>
    <message>
        <source>RS_Strip_Count</source>
        <translation>절단 사이의 라벨 수: %1.</translation>
    </message>
    <message>
        <source>RS_Strip_CutAtEnd</source>
        <translation>마지막에 절단됩니다.</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <translation>라벨 사이에서 절단하지 않는 특수 테이프입니다.</translation>
    </message>
    <message>
        <source>RS_Strip_HalfCut</source>
        <translation>라벨만 절단되고 이형지는 남아 있어 쉽게 떼어 낼 수 있습니다.</translation>
    </message>
    <message>
        <source>RS_Strip_ChainPrint</source>
        <translation>마지막 라벨은 다음 인쇄 작업까지 프린터 안에 남습니다.</translation>
    </message>
    <message>
        <source>RS_Strip_CutMark</source>
        <translation>라벨 사이의 표시가 손으로 자를 위치를 알려 줍니다.</translation>
    </message>
    <message>
        <source>RS_Strip_RemoveBlkSpace</source>
        <translation>인쇄 앞뒤에 빈 테이프가 없습니다.</translation>
    </message>
    <message>
        <source>RS_Strip_Mirror</source>
        <translation>좌우가 반전되어 인쇄됩니다.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <translation>절단 간격</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <translation>마지막에 절단</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <translation>좌우 반전 인쇄</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <translation>자동 절단</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <translation>반절단</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <translation>체인 인쇄</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <translation>특수 테이프</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <translation>빈 공간 제거</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <translation>절단 표시</translation>
    </message>
</context>
</TS>
