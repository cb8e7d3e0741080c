<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <translation>Opcje cięcia</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <translation>Cięcie co</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <translation>etykiet</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <translation>Cięcie na końcu</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <translation>Cięcie automatyczne</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <translation>Półcięcie</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <translation>Drukowanie łańcuchowe</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <translation>Taśma specjalna (bez cięcia)</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <translation>Znaczniki cięcia</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <translation>Drukowanie lustrzane</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <translation>Usuwanie pustych miejsc</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <translation>Cięcie etykiet</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <translation>Cięcie na końcu</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <translation>Cięcie automatyczne</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <translation>Półcięcie</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <translation>Drukowanie łańcuchowe</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <translation>Taśma specjalna</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <translation>Znaczniki cięcia</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <translation>Drukowanie lustrzane</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <translation>Usuwanie pustych miejsc</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <translation>Włożono rurkę termokurczliwą. Nie należy ciąć jej automatycznie, ponieważ obcinak może się zaciąć lub zużyć. Wyłącz cięcie automatyczne i przetnij rurkę nożyczkami.</translation>
    </message>
    <message>
        <source>RS_Presets</source>
        <translation>Gotowa kombinacja</translation>
    </message>
    <message>
        <source>RS_Preview</source>
        <translation>Obraz paska</translation>
    </message>
    <message>
        <source>RS_CutEveryCount</source>
        <translation>Liczba etykiet między cięciami</translation>
    </message>
    <message>
        <source>RS_Increase</source>
        <translation>Zwiększ</translation>
    </message>
    <message>
        <source>RS_Decrease</source>
        <translation>Zmniejsz</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOffOff</source>
        <translation>Bez cięcia</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOnOff</source>
        <translation>Cięcie na końcu</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOffOff</source>
        <translation>Cięcie między etykietami</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOnOff</source>
        <translation>Cięcie między etykietami i na końcu</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOffOff</source>
        <translation>Bez cięcia automatycznego</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOnOff</source>
        <translation>Drukowanie łańcuchowe</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOffOff</source>
        <translation>Półcięcie</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOnOff</source>
        <translation>Półcięcie i drukowanie łańcuchowe</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOffOff</source>
        <translation>Cięcie automatyczne</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOnOff</source>
        <translation>Cięcie automatyczne i drukowanie łańcuchowe</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOffOff</source>
        <translation>Cięcie automatyczne i półcięcie</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOnOff</source>
        <translation>Cięcie automatyczne, półcięcie i drukowanie łańcuchowe</translation>
    </message>
    <message>
        <source>RS_Preset_SPMROnOff</source>
        <translation>Taśma specjalna</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOffOff</source>
        <translation>Znaczniki cięcia</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOnOff</source>
        <translation>Znaczniki cięcia i drukowanie łańcuchowe</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOnOff</source>
        <translation>Drukowanie łańcuchowe</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOffOff</source>
        <translation>Bez znaczników cięcia</translation>
    </message>
    <message>
        <source>RS_Help_CutEvery</source>
        <translation>Odcina pasek za każdym razem po wydrukowaniu podanej liczby etykiet.</translation>
    </message>
    <message>
        <source>RS_Help_CutAtEnd</source>
        <translation>Odcina pasek za ostatnią etykietą.</translation>
    </message>
    <message>
        <source>RS_Help_Mirror</source>
        <translation>Drukuje w odbiciu lustrzanym, do czytania przez przezroczystą taśmę lub szybę.</translation>
    </message>
    <message>
        <source>RS_Help_AutoCut</source>
        <translation>Drukarka sama odcina etykiety.</translation>
    </message>
    <message>
        <source>RS_Help_HalfCut</source>
        <translation>Przecina etykietę, ale nie podkład, dzięki czemu łatwo ją odkleić.</translation>
    </message>
    <message>
        <source>RS_Help_ChainPrint</source>
        <translation>Nie pozostawia pustej taśmy między tym a następnym zadaniem drukowania.</translation>
    </message>
    <message>
        <source>RS_Help_SpecialTape</source>
        <translation>Do taśmy, której drukarka nie może ciąć. Wyłącza półcięcia i cięcia między etykietami.</translation>
    </message>
    <message>
        <source>RS_Help_RemoveBlkSpace</source>
        <translation>Pomija pustą taśmę przed wydrukiem i za nim.</translation>
    </message>
    <message>
        <source>RS_Help_CutMark</source>
        <translation>Drukuje między etykietami znaczniki wskazujące, gdzie ciąć ręcznie.</translation>
    </message>
    <message>
        <source>RS_Help_Count</source>
        <translation>Liczba od %1 do %2.</translation>
    </message>
    <message>
        <source>RS_Help_Presets</source>
        <translation>Zaznacza pola wyboru typowej kombinacji opcji.</translation>
    </message>
    <message>
        <source>RS_Why_Tape</source>
        <translation>Niedostępne dla tej taśmy.</translation>
    </message>
    <message>
        <source>RS_Why_Printer</source>
        <translation>Niedostępne dla tej drukarki.</translation>
    </message>
    <message>
        <source>RS_Why_Together</source>
        <translation>Niedostępne razem z opcją „%1”.</translation>
    </message>
    <message>
        <source>RS_Why_Needs</source>
        <translation>Dostępne, gdy zaznaczono opcję „%1”.</translation>
    </message>
    <message>
        <source>RS_Why_Reopen</source>
        <translation>Niedostępne od chwili zmiany taśmy. Aby użyć tej opcji, otwórz ponownie okno drukowania.</translation>
    </message>
    <message>
        <source>RS_Strip_Uncut</source>
        <translation>Etykiety pozostają razem na jednym pasku, który nie jest cięty.</translation>
    </message>
    <message>
        <source>RS_Strip_Cut</source>
        <translation>Pasek jest cięty między etykietami.</translation>
    </message>
    <message>
        <source>RS_Strip_Count</source>
        <translation>Liczba etykiet między cięciami: %1.</translation>
    </message>
    <message>
        <source>RS_Strip_CutAtEnd</source>
        <translation>Pasek jest odcinany na końcu.</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <translation>To taśma specjalna, która nie jest cięta między etykietami.</translation>
    </message>
    <message>
        <source>RS_Strip_HalfCut</source>
        <translation>Etykiety są przecinane, ale ich podkład nie, dzięki czemu łatwo je odkleić.</translation>
    </message>
    <message>
        <source>RS_Strip_ChainPrint</source>
        <translation>Ostatnia etykieta pozostaje w drukarce do następnego zadania drukowania.</translation>
    </message>
    <message>
        <source>RS_Strip_CutMark</source>
        <translation>Znaczniki między etykietami wskazują, gdzie ciąć ręcznie.</translation>
    </message>
    <message>
        <source>RS_Strip_RemoveBlkSpace</source>
        <translation>Przed wydrukiem i za nim nie ma pustej taśmy.</translation>
    </message>
    <message>
        <source>RS_Strip_Mirror</source>
        <translation>Wydruk jest w odbiciu lustrzanym.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <translation>Cięcie co</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <translation>Cięcie na końcu</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <translation>Drukowanie lustrzane</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <translation>Cięcie automatyczne</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <translation>Półcięcie</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <translation>Drukowanie łańcuchowe</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <translation>Taśma specjalna</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <translation>Usuwanie pustych miejsc</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <translation>Znaczniki cięcia</translation>
    </message>
</context>
</TS>
