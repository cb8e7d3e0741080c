<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <translation>Options de coupe</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <translation>Couper toutes les</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <translation>étiquettes</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <translation>Couper à la fin</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <translation>Coupe automatique</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <translation>Demi-coupe</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <translation>Impression en chaîne</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <translation>Ruban spécial (sans coupe)</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <translation>Repères de coupe</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <translation>Impression en miroir</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <translation>Supprimer les espaces vides</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <translation>Coupe des étiquettes</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <translation>Couper à la fin</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <translation>Coupe automatique</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <translation>Demi-coupe</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <translation>Impression en chaîne</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <translation>Ruban spécial</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <translation>Repères de coupe</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <translation>Impression en miroir</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <translation>Supprimer les espaces vides</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <translation>Une gaine thermorétractable est chargée. Elle ne doit pas être coupée automatiquement, car le massicot risque de se bloquer ou de s’user. Désactivez la coupe automatique et coupez la gaine avec des ciseaux.</translation>
    </message>
    <message>
        <source>RS_Presets</source>
        <translation>Combinaison prédéfinie</translation>
    </message>
    <message>
        <source>RS_Preview</source>
        <translation>Image de la bande</translation>
    </message>
    <message>
        <source>RS_CutEveryCount</source>
        <translation>Nombre d’étiquettes entre deux coupes</translation>
    </message>
    <message>
        <source>RS_Increase</source>
        <translation>Augmenter</translation>
    </message>
    <message>
        <source>RS_Decrease</source>
        <translation>Diminuer</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOffOff</source>
        <translation>Aucune coupe</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOffOnOff</source>
        <translation>Couper à la fin</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOffOff</source>
        <translation>Couper entre les étiquettes</translation>
    </message>
    <message>
        <source>RS_Preset_EveryEndMirrorOnOnOff</source>
        <translation>Couper entre les étiquettes et à la fin</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOffOff</source>
        <translation>Aucune coupe automatique</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOffOnOff</source>
        <translation>Impression en chaîne</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOffOff</source>
        <translation>Demi-coupe</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOffOnOnOff</source>
        <translation>Demi-coupe et impression en chaîne</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOffOff</source>
        <translation>Coupe automatique</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOffOnOff</source>
        <translation>Coupe automatique et impression en chaîne</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOffOff</source>
        <translation>Coupe automatique et demi-coupe</translation>
    </message>
    <message>
        <source>RS_Preset_AHCMOnOnOnOff</source>
        <translation>Coupe automatique, demi-coupe et impression en chaîne</translation>
    </message>
    <message>
        <source>RS_Preset_SPMROnOff</source>
        <translation>Ruban spécial</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOffOff</source>
        <translation>Repères de coupe</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROnOnOff</source>
        <translation>Repères de coupe et impression en chaîne</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOnOff</source>
        <translation>Impression en chaîne</translation>
    </message>
    <message>
        <source>RS_Preset_CTMROffOffOff</source>
        <translation>Aucun repère de coupe</translation>
    </message>
    <message>
        <source>RS_Help_CutEvery</source>
        <translation>Coupe la bande chaque fois que ce nombre d’étiquettes est atteint.</translation>
    </message>
    <message>
        <source>RS_Help_CutAtEnd</source>
        <translation>Coupe la bande après la dernière étiquette.</translation>
    </message>
    <message>
        <source>RS_Help_Mirror</source>
        <translation>Imprime en miroir, pour une lecture à travers un ruban transparent ou une vitre.</translation>
    </message>
    <message>
        <source>RS_Help_AutoCut</source>
        <translation>L’imprimante coupe elle-même les étiquettes.</translation>
    </message>
    <message>
        <source>RS_Help_HalfCut</source>
        <translation>Coupe l’étiquette mais pas son support, afin qu’elle se décolle facilement.</translation>
    </message>
    <message>
        <source>RS_Help_ChainPrint</source>
        <translation>Ne laisse pas de ruban vierge entre cette tâche d’impression et la suivante.</translation>
    </message>
    <message>
        <source>RS_Help_SpecialTape</source>
        <translation>Pour les rubans que l’imprimante ne peut pas couper. Désactive les demi-coupes et les coupes entre les étiquettes.</translation>
    </message>
    <message>
        <source>RS_Help_RemoveBlkSpace</source>
        <translation>Supprime le ruban vierge avant et après l’impression.</translation>
    </message>
    <message>
        <source>RS_Help_CutMark</source>
        <translation>Imprime entre les étiquettes des repères qui indiquent où couper à la main.</translation>
    </message>
    <message>
        <source>RS_Help_Count</source>
        <translation>Un nombre compris entre %1 et %2.</translation>
    </message>
    <message>
        <source>RS_Help_Presets</source>
        <translation>Coche les cases d’une combinaison courante des options.</translation>
    </message>
    <message>
        <source>RS_Why_Tape</source>
        <translation>Non disponible avec ce ruban.</translation>
    </message>
    <message>
        <source>RS_Why_Printer</source>
        <translation>Non disponible avec cette imprimante.</translation>
    </message>
    <message>
        <source>RS_Why_Together</source>
        <translation>Non disponible en même temps que « %1 ».</translation>
    </message>
    <message>
        <source>RS_Why_Needs</source>
        <translation>Disponible lorsque l’option « %1 » est cochée.</translation>
    </message>
    <message>
        <source>RS_Why_Reopen</source>
        <translation>Non disponible depuis le changement de ruban. Rouvrez la boîte de dialogue d’impression pour utiliser cette option.</translation>
    </message>
    <message>
        <source>RS_Strip_Uncut</source>
        <translation>Les étiquettes restent ensemble sur une bande qui n’est pas coupée.</translation>
    </message>
    <message>
        <source>RS_Strip_Cut</source>
        <translation>La bande est coupée entre les étiquettes.</translation>
    </message>
    <message>
        <source>RS_Strip_Count</source>
        <translation>Nombre d’étiquettes entre deux coupes : %1.</translation>
    </message>
    <message>
        <source>RS_Strip_CutAtEnd</source>
        <translation>La bande est coupée à la fin.</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <translation>Il s’agit d’un ruban spécial, qui n’est pas coupé entre les étiquettes.</translation>
    </message>
    <message>
        <source>RS_Strip_HalfCut</source>
        <translation>Les étiquettes sont coupées mais pas leur support, afin qu’elles se décollent facilement.</translation>
    </message>
    <message>
        <source>RS_Strip_ChainPrint</source>
        <translation>La dernière étiquette reste dans l’imprimante jusqu’à la prochaine tâche d’impression.</translation>
    </message>
    <message>
        <source>RS_Strip_CutMark</source>
        <translation>Des repères entre les étiquettes indiquent où couper à la main.</translation>
    </message>
    <message>
        <source>RS_Strip_RemoveBlkSpace</source>
        <translation>Il n’y a pas de ruban vierge avant et après l’impression.</translation>
    </message>
    <message>
        <source>RS_Strip_Mirror</source>
        <translation>L’impression est inversée en miroir.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <translation>Couper toutes les</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <translation>Couper à la fin</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <translation>Impression en miroir</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <translation>Coupe automatique</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <translation>Demi-coupe</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <translation>Impression en chaîne</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <translation>Ruban spécial</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <translation>Supprimer les espaces vides</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <translation>Repères de coupe</translation>
    </message>
</context>
</TS>
