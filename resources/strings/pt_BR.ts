<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <translation>Opções de corte</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <translation>Cortar a cada</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <translation>etiquetas</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <translation>Cortar no final</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <translation>Corte automático</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <translation>Meio corte</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <translation>Impressão em cadeia</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <translation>Fita especial (sem corte)</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <translation>Marcas de corte</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <translation>Impressão espelhada</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <translation>Remover espaço em branco</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <translation>Corte de etiquetas</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <translation>Cortar no final</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <translation>Corte automático</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <translation>Meio corte</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <translation>Impressão em cadeia</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <translation>Fita especial</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <translation>Marcas de corte</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <translation>Impressão espelhada</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <translation>Remover espaço em branco</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <translation>Há um tubo termorretrátil carregado. Ele não deve ser cortado com o corte automático, pois o cortador pode travar ou se desgastar. Desative o corte automático e corte o tubo com uma tesoura.</translation>
    </message>
    <message>
        <source>RS_Presets</source>
        <translation>Combinação predefinida</translation>
    </message>
    <message>
        <source>RS_Preview</source>
        <translation>Imagem da tira</translation>
    </message>
    <message>
        <source>RS_CutEveryCount</source>
        <translation>Número de etiquetas entre cortes</translation>
    </message>
    <message>
        <source>RS_Increase</source>
        <translation>Aumentar</translation>
    </message>
    <message>
        <source>RS_Decrease</source>
        <translation>Diminuir</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOffOff</source>
        <translation>Sem corte</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOnOff</source>
        <translation>Cortar no final</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOffOff</source>
        <translation>Cortar entre as etiquetas</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOnOff</source>
        <translation>Cortar entre as etiquetas e no final</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOffOff</source>
        <translation>Sem corte automático</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOnOff</source>
        <translation>Impressão em cadeia</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOffOff</source>
        <translation>Meio corte</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOnOff</source>
        <translation>Meio corte e impressão em cadeia</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOffOff</source>
        <translation>Corte automático</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOnOff</source>
        <translation>Corte automático e impressão em cadeia</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOffOff</source>
        <translation>Corte automático e meio corte</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOnOff</source>
        <translation>Corte automático, meio corte e impressão em cadeia</translation>
    </message>
    <message>
        <source>RS_Preset_SPMROnOff</source>
        <translation>Fita especial</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOffOff</source>
        <translation>Marcas de corte</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOnOff</source>
        <translation>Marcas de corte e impressão em cadeia</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOnOff</source>
        <translation>Impressão em cadeia</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOffOff</source>
        <translation>Sem marcas de corte</translation>
    </message>
    <message>
        <source>RS_Help_CutEvery</source>
        <translation>Corta a tira sempre que esse número de etiquetas é atingido.</translation>
    </message>
    <message>
        <source>RS_Help_CutAtEnd</source>
        <translation>Corta a tira depois da última etiqueta.</translation>
    </message>
    <message>
        <source>RS_Help_Mirror</source>
        <translation>Imprime de forma espelhada, para leitura através de fita transparente ou vidro.</translation>
    </message>
    <message>
        <source>RS_Help_AutoCut</source>
        <translation>A própria impressora corta as etiquetas.</translation>
    </message>
    <message>
        <source>RS_Help_HalfCut</source>
        <translation>Corta a etiqueta, mas não o suporte, para que seja fácil descolá-la.</translation>
    </message>
    <message>
        <source>RS_Help_ChainPrint</source>
        <translation>Não deixa fita em branco entre este trabalho de impressão e o próximo.</translation>
    </message>
    <message>
        <source>RS_Help_SpecialTape</source>
        <translation>Para fitas que a impressora não consegue cortar. Desativa os meios cortes e os cortes entre as etiquetas.</translation>
    </message>
    <message>
        <source>RS_Help_RemoveBlkSpace</source>
        <translation>Omite a fita em branco antes e depois da impressão.</translation>
    </message>
    <message>
        <source>RS_Help_CutMark</source>
        <translation>Imprime entre as etiquetas marcas que indicam onde cortar à mão.</translation>
    </message>
    <message>
        <source>RS_Help_Count</source>
        <translation>Um número de %1 a %2.</translation>
    </message>
    <message>
        <source>RS_Help_Presets</source>
        <translation>Marca as caixas de uma combinação comum das opções.</translation>
    </message>
    <message>
        <source>RS_Why_Tape</source>
        <translation>Não disponível com esta fita.</translation>
    </message>
    <message>
        <source>RS_Why_Printer</source>
        <translation>Não disponível nesta impressora.</translation>
    </message>
    <message>
        <source>RS_Why_Together</source>
        <translation>Não disponível junto com “%1”.</translation>
    </message>
    <message>
        <source>RS_Why_Needs</source>
        <translation>Disponível quando a opção “%1” está marcada.</translation>
    </message>
    <message>
        <source>RS_Why_Reopen</source>
        <translation>Não disponível desde a troca da fita. Abra novamente a caixa de diálogo de impressão para usar esta opção.</translation>
    </message>
    <message>
        <source>RS_Strip_Uncut</source>
        <translation>As etiquetas ficam juntas em uma tira que não é cortada.</translation>
    </message>
    <message>
        <source>RS_Strip_Cut</source>
        <translation>A tira é cortada entre as etiquetas.</translation>
    </message>
    <message>
        <source>RS_Strip_Count</source>
        <translation>Número de etiquetas entre cortes: %1.</translation>
    </message>
    <message>
        <source>RS_Strip_CutAtEnd</source>
        <translation>A tira é cortada no final.</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <translation>É uma fita especial, que não é cortada entre as etiquetas.</translation>
    </message>
    <message>
        <source>RS_Strip_HalfCut</source>
        <translation>As etiquetas são cortadas, mas o suporte não, para que seja fácil descolá-las.</translation>
    </message>
    <message>
        <source>RS_Strip_ChainPrint</source>
        <translation>A última etiqueta fica na impressora até o próximo trabalho de impressão.</translation>
    </message>
    <message>
        <source>RS_Strip_CutMark</source>
        <translation>As marcas entre as etiquetas indicam onde cortar à mão.</translation>
    </message>
    <message>
        <source>RS_Strip_RemoveBlkSpace</source>
        <translation>Não há fita em branco antes e depois da impressão.</translation>
    </message>
    <message>
        <source>RS_Strip_Mirror</source>
        <translation>A impressão está espelhada.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <translation>Cortar a cada</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <translation>Cortar no final</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <translation>Impressão espelhada</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <translation>Corte automático</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <translation>Meio corte</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <translation>Impressão em cadeia</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <translation>Fita especial</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <translation>Remover espaço em branco</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <translation>Marcas de corte</translation>
    </message>
</context>
</TS>
