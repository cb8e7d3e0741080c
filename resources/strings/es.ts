<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <translation>Opciones de corte</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <translation>Cortar cada</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <translation>etiquetas</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <translation>Cortar al final</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <translation>Corte automático</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <translation>Medio corte</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <translation>Impresión en cadena</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <translation>Cinta especial (sin corte)</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <translation>Marcas de corte</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <translation>Impresión en espejo</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <translation>Eliminar espacio en blanco</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <translation>Corte de etiquetas</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <translation>Cortar al final</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <translation>Corte automático</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <translation>Medio corte</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <translation>Impresión en cadena</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <translation>Cinta especial</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <translation>Marcas de corte</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <translation>Impresión en espejo</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <translation>Eliminar espacio en blanco</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <translation>Hay un tubo termorretráctil cargado. No debe cortarse con el corte automático, ya que el cortador podría atascarse o desgastarse. Desactive el corte automático y corte el tubo con unas tijeras.</translation>
    </message>
    <message>
        <source>RS_Presets</source>
        <translation>Combinación predefinida</translation>
    </message>
    <message>
        <source>RS_Preview</source>
        <translation>Imagen de la tira</translation>
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
        <translation>Disminuir</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOffOff</source>
        <translation>Sin corte</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOnOff</source>
        <translation>Cortar al final</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOffOff</source>
        <translation>Cortar entre etiquetas</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOnOff</source>
        <translation>Cortar entre etiquetas y al final</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOffOff</source>
        <translation>Sin corte automático</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOnOff</source>
        <translation>Impresión en cadena</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOffOff</source>
        <translation>Medio corte</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOnOff</source>
        <translation>Medio corte e impresión en cadena</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOffOff</source>
        <translation>Corte automático</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOnOff</source>
        <translation>Corte automático e impresión en cadena</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOffOff</source>
        <translation>Corte automático y medio corte</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOnOff</source>
        <translation>Corte automático, medio corte e impresión en cadena</translation>
    </message>
    <message>
        <source>RS_Preset_SPMROnOff</source>
        <translation>Cinta especial</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOffOff</source>
        <translation>Marcas de corte</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOnOff</source>
        <translation>Marcas de corte e impresión en cadena</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOnOff</source>
        <translation>Impresión en cadena</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOffOff</source>
        <translation>Sin marcas de corte</translation>
    </message>
    <message>
        <source>RS_Help_CutEvery</source>
        <translation>Corta la tira cada vez que se alcanza ese número de etiquetas.</translation>
    </message>
    <message>
        <source>RS_Help_CutAtEnd</source>
        <translation>Corta la tira después de la última etiqueta.</translation>
    </message>
    <message>
        <source>RS_Help_Mirror</source>
        <translation>Imprime en espejo, para leerse a través de una cinta transparente o de un cristal.</translation>
    </message>
    <message>
        <source>RS_Help_AutoCut</source>
        <translation>La impresora corta las etiquetas por sí misma.</translation>
    </message>
    <message>
        <source>RS_Help_HalfCut</source>
        <translation>Corta la etiqueta pero no su soporte, para que se despegue con facilidad.</translation>
    </message>
    <message>
        <source>RS_Help_ChainPrint</source>
        <translation>No deja cinta en blanco entre este trabajo de impresión y el siguiente.</translation>
    </message>
    <message>
        <source>RS_Help_SpecialTape</source>
        <translation>Para cintas que la impresora no puede cortar. Desactiva los medios cortes y los cortes entre etiquetas.</translation>
    </message>
    <message>
        <source>RS_Help_RemoveBlkSpace</source>
        <translation>Omite la cinta en blanco antes y después de la impresión.</translation>
    </message>
    <message>
        <source>RS_Help_CutMark</source>
        <translation>Imprime entre las etiquetas marcas que indican dónde cortar a mano.</translation>
    </message>
    <message>
        <source>RS_Help_Count</source>
        <translation>Un número entre %1 y %2.</translation>
    </message>
    <message>
        <source>RS_Help_Presets</source>
        <translation>Marca las casillas de una combinación habitual de las opciones.</translation>
    </message>
    <message>
        <source>RS_Why_Tape</source>
        <translation>No disponible con esta cinta.</translation>
    </message>
    <message>
        <source>RS_Why_Printer</source>
        <translation>No disponible con esta impresora.</translation>
    </message>
    <message>
        <source>RS_Why_Together</source>
        <translation>No disponible junto con «%1».</translation>
    </message>
    <message>
        <source>RS_Why_Needs</source>
        <translation>Disponible cuando la opción «%1» está marcada.</translation>
    </message>
    <message>
        <source>RS_Why_Reopen</source>
        <translation>No disponible desde que se cambió la cinta. Vuelva a abrir el cuadro de diálogo de impresión para usar esta opción.</translation>
    </message>
    <message>
        <source>RS_Strip_Uncut</source>
        <translation>Las etiquetas quedan juntas en una tira que no se corta.</translation>
    </message>
    <message>
        <source>RS_Strip_Cut</source>
        <translation>La tira se corta entre las etiquetas.</translation>
    </message>
    <message>
        <source>RS_Strip_Count</source>
        <translation>Número de etiquetas entre cortes: %1.</translation>
    </message>
    <message>
        <source>RS_Strip_CutAtEnd</source>
        <translation>La tira se corta al final.</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <translation>Es una cinta especial, que no se corta entre las etiquetas.</translation>
    </message>
    <message>
        <source>RS_Strip_HalfCut</source>
        <translation>Las etiquetas se cortan pero su soporte no, para que se despeguen con facilidad.</translation>
    </message>
    <message>
        <source>RS_Strip_ChainPrint</source>
        <translation>La última etiqueta queda en la impresora hasta el siguiente trabajo de impresión.</translation>
    </message>
    <message>
        <source>RS_Strip_CutMark</source>
        <translation>Unas marcas entre las etiquetas indican dónde cortar a mano.</translation>
    </message>
    <message>
        <source>RS_Strip_RemoveBlkSpace</source>
        <translation>No hay cinta en blanco antes ni después de la impresión.</translation>
    </message>
    <message>
        <source>RS_Strip_Mirror</source>
        <translation>La impresión está invertida como en un espejo.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <translation>Cortar cada</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <translation>Cortar al final</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <translation>Impresión en espejo</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <translation>Corte automático</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <translation>Medio corte</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <translation>Impresión en cadena</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <translation>Cinta especial</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <translation>Eliminar espacio en blanco</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <translation>Marcas de corte</translation>
    </message>
</context>
</TS>
