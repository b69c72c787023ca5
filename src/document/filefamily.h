#pragma once

#include <QString>
#include <QStringView>

namespace quenfor {

enum class FamilyKind { None, Config, Dtl, Pcf, SearchPro, Scl };

// Everything the main window must show, hide and load for a file, decided from the end of its
// name. Only the all-lower and the all-upper spelling of an ending count: "Config.Pro" belongs
// to no family, as users of the CAD system expect from its own tools.
struct FileFamily {
    FamilyKind kind = FamilyKind::None;

    QString pickerList;        // "List2cfg", "List2dtl", "List2pcf"; empty: no picker is filled
    QString optionListFile;    // picker source beside the program: "quenfor.pro", ...
    QString knowledgeBaseFile; // "config_opts.txt", "dtl_opts.txt", "pcf_opts.txt"
    QString defaultSaveName;   // preset of txt_save

    bool pickerVisible = false;         // the picker list named above is shown
    bool addFrameVisible = true;        // frame_hinzu
    bool allButtonVisible = true;       // cmdAlle
    bool optionFrameVisible = false;    // Frame1
    bool categoryBoxVisible = false;    // combo_kathegorie
    bool optionMenuEnabled = true;      // mnuOption
    bool searchProFrameVisible = false; // frame_search_pro
    bool colorButtonVisible = false;    // cmd_Color

    // Status text after the picker source was read, e.g. "quenfor.pro wurde gelesen".
    QString pickerLoadedStatus() const;
};

FileFamily fileFamilyOf(QStringView fileName);

// "config", "dtl", "pcf", "searchpro", "scl" or "none".
QString familyKindName(FamilyKind kind);

} // namespace quenfor
