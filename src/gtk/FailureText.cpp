// SPDX-License-Identifier: Apache-2.0
#include "gtk/FailureText.h"

#include <glib.h>

namespace {
struct Texts
{
    const char *language;
    const char *title;
    const char *text;
};

/// The panel's own texts come from the service, which is not there when these are needed.
constexpr Texts texts[] = {
    {"ar", "خيارات القص", "لا يمكن عرض خيارات الطابعة. ستُطبع المهمة بالإعدادات الحالية."},
    {"de", "Schnittoptionen",
     "Die Optionen des Druckers können nicht angezeigt werden. Gedruckt wird mit den jetzigen "
     "Einstellungen."},
    {"en", "Cut Options",
     "The printer's options cannot be shown. The job is printed with the present settings."},
    {"es", "Opciones de corte",
     "No se pueden mostrar las opciones de la impresora. Se imprimirá con los ajustes actuales."},
    {"fr", "Options de coupe",
     "Impossible d’afficher les options de l’imprimante. L’impression se fera avec les réglages "
     "actuels."},
    {"it", "Opzioni di taglio",
     "Impossibile mostrare le opzioni della stampante. La stampa userà le impostazioni attuali."},
    {"ja", "カットオプション",
     "プリンターのオプションを表示できません。現在の設定で印刷されます。"},
    {"ko", "절단 옵션", "프린터 옵션을 표시할 수 없습니다. 현재 설정으로 인쇄됩니다."},
    {"nl", "Snijopties",
     "De opties van de printer kunnen niet worden getoond. Er wordt met de huidige instellingen "
     "afgedrukt."},
    {"pl", "Opcje cięcia", "Nie można pokazać opcji drukarki. Wydruk użyje bieżących ustawień."},
    {"pt_BR", "Opções de corte",
     "Não é possível mostrar as opções da impressora. A impressão usará as configurações atuais."},
    {"zh_CN", "裁切选项", "无法显示打印机选项。将按当前设置打印。"},
    {"zh_TW", "裁切選項", "無法顯示印表機選項。將以目前的設定列印。"},
};

const Texts &textsOfUser()
{
    // The user's languages, each from "de_AT.UTF-8" to "de", and "C" at the end.
    for (const char *const *name = g_get_language_names(); *name; ++name) {
        for (const Texts &candidate : texts) {
            if (g_str_equal(*name, candidate.language) ||
                (g_str_equal(*name, "pt") && g_str_equal(candidate.language, "pt_BR"))) {
                return candidate;
            }
        }
    }
    constexpr int english = 2;
    return texts[english];
}
} // namespace

const char *failureTitle()
{
    return textsOfUser().title;
}

const char *failureText()
{
    return textsOfUser().text;
}
