<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <translation>Opzioni di taglio</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <translation>Taglia ogni</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <translation>etichette</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <translation>Taglia alla fine</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <translation>Taglio automatico</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <translation>Mezzo taglio</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <translation>Stampa a catena</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <translation>Nastro speciale (senza taglio)</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <translation>Segni di taglio</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <translation>Stampa speculare</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <translation>Rimuovi spazio vuoto</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <translation>Taglio etichette</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <translation>Taglia alla fine</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <translation>Taglio automatico</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <translation>Mezzo taglio</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <translation>Stampa a catena</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <translation>Nastro speciale</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <translation>Segni di taglio</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <translation>Stampa speculare</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <translation>Rimuovi spazio vuoto</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <translation>È caricato un tubo termorestringente. Non deve essere tagliato con il taglio automatico, perché la taglierina potrebbe incepparsi o usurarsi. Disattivare il taglio automatico e tagliare il tubo con le forbici.</translation>
    </message>
    <message>
        <source>RS_Presets</source>
        <translation>Combinazione predefinita</translation>
    </message>
    <message>
        <source>RS_Preview</source>
        <translation>Immagine della striscia</translation>
    </message>
    <message>
        <source>RS_CutEveryCount</source>
        <translation>Numero di etichette tra due tagli</translation>
    </message>
    <message>
        <source>RS_Increase</source>
        <translation>Aumenta</translation>
    </message>
    <message>
        <source>RS_Decrease</source>
        <translation>Diminuisci</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOffOff</source>
        <translation>Nessun taglio</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOnOff</source>
        <translation>Taglia alla fine</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOffOff</source>
        <translation>Taglia tra le etichette</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOnOff</source>
        <translation>Taglia tra le etichette e alla fine</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOffOff</source>
        <translation>Nessun taglio automatico</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOnOff</source>
        <translation>Stampa a catena</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOffOff</source>
        <translation>Mezzo taglio</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOnOff</source>
        <translation>Mezzo taglio e stampa a catena</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOffOff</source>
        <translation>Taglio automatico</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOnOff</source>
        <translation>Taglio automatico e stampa a catena</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOffOff</source>
        <translation>Taglio automatico e mezzo taglio</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOnOff</source>
        <translation>Taglio automatico, mezzo taglio e stampa a catena</translation>
    </message>
    <message>
        <source>RS_Preset_SPMROnOff</source>
        <translation>Nastro speciale</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOffOff</source>
        <translation>Segni di taglio</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOnOff</source>
        <translation>Segni di taglio e stampa a catena</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOnOff</source>
        <translation>Stampa a catena</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOffOff</source>
        <translation>Nessun segno di taglio</translation>
    </message>
    <message>
        <source>RS_Help_CutEvery</source>
        <translation>Taglia la striscia ogni volta che viene raggiunto questo numero di etichette.</translation>
    </message>
    <message>
        <source>RS_Help_CutAtEnd</source>
        <translation>Taglia la striscia dopo l’ultima etichetta.</translation>
    </message>
    <message>
        <source>RS_Help_Mirror</source>
        <translation>Stampa in modo speculare, per la lettura attraverso un nastro trasparente o un vetro.</translation>
    </message>
    <message>
        <source>RS_Help_AutoCut</source>
        <translation>La stampante taglia da sé le etichette.</translation>
    </message>
    <message>
        <source>RS_Help_HalfCut</source>
        <translation>Taglia l’etichetta ma non il supporto, in modo che sia facile da staccare.</translation>
    </message>
    <message>
        <source>RS_Help_ChainPrint</source>
        <translation>Non lascia nastro vuoto tra questo lavoro di stampa e il successivo.</translation>
    </message>
    <message>
        <source>RS_Help_SpecialTape</source>
        <translation>Per i nastri che la stampante non può tagliare. Disattiva i mezzi tagli e i tagli tra le etichette.</translation>
    </message>
    <message>
        <source>RS_Help_RemoveBlkSpace</source>
        <translation>Omette il nastro vuoto prima e dopo la stampa.</translation>
    </message>
    <message>
        <source>RS_Help_CutMark</source>
        <translation>Stampa tra le etichette dei segni che indicano dove tagliare a mano.</translation>
    </message>
    <message>
        <source>RS_Help_Count</source>
        <translation>Un numero compreso tra %1 e %2.</translation>
    </message>
    <message>
        <source>RS_Help_Presets</source>
        <translation>Seleziona le caselle di una combinazione comune delle opzioni.</translation>
    </message>
    <message>
        <source>RS_Why_Tape</source>
        <translation>Non disponibile con questo nastro.</translation>
    </message>
    <message>
        <source>RS_Why_Printer</source>
        <translation>Non disponibile con questa stampante.</translation>
    </message>
    <message>
        <source>RS_Why_Together</source>
        <translation>Non disponibile insieme a “%1”.</translation>
    </message>
    <message>
        <source>RS_Why_Needs</source>
        <translation>Disponibile quando l’opzione “%1” è selezionata.</translation>
    </message>
    <message>
        <source>RS_Why_Reopen</source>
        <translation>Non disponibile da quando è stato cambiato il nastro. Riaprire la finestra di stampa per usare questa opzione.</translation>
    </message>
    <message>
        <source>RS_Strip_Uncut</source>
        <translation>Le etichette restano insieme su una striscia che non viene tagliata.</translation>
    </message>
    <message>
        <source>RS_Strip_Cut</source>
        <translation>La striscia viene tagliata tra le etichette.</translation>
    </message>
    <message>
        <source>RS_Strip_Count</source>
        <translation>Numero di etichette tra due tagli: %1.</translation>
    </message>
    <message>
        <source>RS_Strip_CutAtEnd</source>
        <translation>La striscia viene tagliata alla fine.</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <translation>È un nastro speciale, che non viene tagliato tra le etichette.</translation>
    </message>
    <message>
        <source>RS_Strip_HalfCut</source>
        <translation>Le etichette vengono tagliate ma il supporto no, in modo che siano facili da staccare.</translation>
    </message>
    <message>
        <source>RS_Strip_ChainPrint</source>
        <translation>L’ultima etichetta resta nella stampante fino al prossimo lavoro di stampa.</translation>
    </message>
    <message>
        <source>RS_Strip_CutMark</source>
        <translation>I segni tra le etichette indicano dove tagliare a mano.</translation>
    </message>
    <message>
        <source>RS_Strip_RemoveBlkSpace</source>
        <translation>Non c’è nastro vuoto prima e dopo la stampa.</translation>
    </message>
    <message>
        <source>RS_Strip_Mirror</source>
        <translation>La stampa è speculare.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <translation>Taglia ogni</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <translation>Taglia alla fine</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <translation>Stampa speculare</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <translation>Taglio automatico</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <translation>Mezzo taglio</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <translation>Stampa a catena</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <translation>Nastro speciale</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <translation>Rimuovi spazio vuoto</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <translation>Segni di taglio</translation>
    </message>
</context>
</TS>
