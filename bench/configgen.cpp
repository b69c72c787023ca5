#include "configgen.h"

#include <algorithm>
#include <cctype>

namespace quenfor::bench {

namespace {

// In the lists below, windows-1252 bytes are written as octal escapes: they end after three digits,
// where a hex escape would swallow a following letter a-f.
const char* const kPrefixes[] = {
    "pro",    "intf",     "intf3d",  "dxf",     "iges",   "step",  "sketcher", "drawing", "model",
    "mdl",    "mfg",      "nc",      "cable",   "weld",   "smt",   "simprep",  "fem",     "mech",
    "plot",   "template", "default", "display", "enable", "allow", "show",     "auto",    "save",
    "search", "web",      "windows", "std",     "tol",    "pdm",   "harness",  "mold",    "cast",
};

const char* const kNouns[] = {
    "setup",     "library", "tree",     "dim",       "tolerance", "font",      "pen",     "line",     "color",
    "regen",     "path",    "trail",    "unit",      "mass",      "length",    "format",  "symbol",   "note",
    "view",      "datum",   "axis",     "plane",     "point",     "csys",      "layer",   "family",   "table",
    "feature",   "hole",    "thread",   "bend",      "relation",  "parameter", "rep",     "assembly", "part",
    "component", "surface", "quilt",    "edge",      "shade",     "hlr",       "quality", "accuracy", "export",
    "import",    "config",  "text",     "dialog",    "print",     "paper",     "sheet",   "border",   "arrow",
    "leader",    "balloon", "bom",      "report",    "cosmetic",  "hatch",     "spline",  "curve",    "sketch",
    "section",   "explode", "instance", "interface", "mapkey",    "menu",      "toolbar", "icon",     "window",
    "browser",   "cache",   "memory",   "license",   "server",    "workspace", "checkin", "revision", "release",
    "version",   "drawing", "model",    "weld",      "harness",   "gear",      "spring",
};

const char* const kPathSuffixes[] = {"dir", "file", "path", "directory", "location", "folder"};
const char* const kSwitchSuffixes[] = {"enabled", "display", "on_open", "at_start", "visible",
                                       "check",   "auto",    "warning", "prompt"};
const char* const kNumberSuffixes[] = {"size",  "scale",  "height", "width",  "angle", "limit",
                                       "level", "factor", "count",  "weight", "ratio", "digits"};
const char* const kWordSuffixes[] = {"mode",   "type",    "style",  "format", "standard", "units",
                                     "status", "default", "option", "method", "color",    "policy"};
const char* const kTextSuffixes[] = {"name", "label", "title", "owner"};

const char* const kSwitches[] = {"yes", "no", "yes", "no", "yes", "no", "YES", "NO", "Yes", "true", "false"};

const char* const kWords[] = {"unit_mm",
                              "unit_inch",
                              "unit_kilogram",
                              "iso",
                              "ansi",
                              "din",
                              "jis",
                              "shading_high",
                              "shadewithedges",
                              "wireframe",
                              "hidden_line",
                              "no_hidden",
                              "both",
                              "all",
                              "none",
                              "default",
                              "choose",
                              "manual",
                              "automatic",
                              "single_polyline",
                              "as_is",
                              "excel_embedded",
                              "windows_print_manager",
                              "fine",
                              "medium",
                              "coarse",
                              "%dd-%mm-%yyyy",
                              "COPY",
                              "ISO",
                              "standard",
                              "parent",
                              "full",
                              "compressed",
                              "enhanced_realism",
                              "fast"};

const char* const kPathWords[] = {
    "templates", "formats", "symbols",  "config",   "text",    "standards", "library", "prolibrary",
    "fonts",     "tables",  "start",    "a3",       "a4_quer", "a0",        "tree",    "colors",
    "holes",     "threads", "welds",    "custom",   "company", "iso_mm",    "din_mm",  "bom",
    "notes",     "parts",   "assembly", "drawings", "layouts", "mapkeys",   "tools",   "materials",
};

// Folder names of a German company; most are plain ASCII, as in real files, where umlauts are rare
// outside comments.
const char* const kFolders[] = {"Normteile", "Vorrichtungen", "Zeichnungen", "Standards", "Konstruktion",
                                "Vorlagen",  "Werkzeuge",     "Baugruppen",  "Formate",   "Symbole"};
const char* const kUmlautFolders[] = {
    "Zeichnungsk\366pfe", "St\374cklisten",  "Oberfl\344chen",  "Pr\374fmittel", "Ger\344te",
    "Ma\337st\344be",     "F\374hrungen",    "Bohrungsma\337e", "\304nderungen", "W\344rmebehandlung",
    "Geh\344use",         "Schwei\337teile", "Bl\344tter",      "Zubeh\366r",
};

const char* const kExtensions[] = {"dtl", "pro", "frm", "prt", "asm", "drw", "txt", "cfg",
                                   "sym", "win", "map", "pcf", "scl", "lst", "ttf", "htm"};

const char* const kTexts[] = {
    "M\374ller Maschinenbau GmbH",
    "Sch\344fer & S\366hne KG",
    "Gr\366\337e 20 \265m",
    "Werk D\374sseldorf",
    "Winkel 45\260",
    "ACME Engineering",
    "Werk Berlin",
    "Konstruktion Hamburg",
    "Abteilung EK-3",
    "Plant 2",
    "Normenstelle",
    "Muster AG",
    "Entwicklung Mechanik",
    "Standort Stuttgart",
};

const char* const kCommentTexts[] = {
    "Einstellungen f\374r Zeichnungen",
    "Bitte nicht \344ndern - gilt f\374r alle Arbeitspl\344tze",
    "Ma\337einheiten und Toleranzen",
    "Schnittstellen (IGES, STEP, DXF)",
    "===== Zeichnungsk\366pfe =====",
    "===============================================",
    "Pfade auf dem Server",
    "Farben und Darstellung",
    "Gr\366\337e der Symbole in mm",
    "Mapkeys der Abteilung Konstruktion",
    "GENERAL",
    "REFERENCE SETTINGS",
    "Standardwerte der Firma, Stand Fr\374hjahr",
    "Vorlagen f\374r Teile und Baugruppen",
};

const char* const kPeople[] = {"H. M\374ller", "J. Sch\344fer", "K. Wei\337",
                               "A. J\344ger",  "P. K\366hler",  "M. Braun"};

const char* const kMapkeyKeys[] = {"wc", "rg", "er", "sv", "qw", "$F5", "$F6", "$F9", "c",  "v",  "oo",
                                   "dd", "ff", "ll", "ts", "sc", "pp",  "mm",  "zz",  "hh", "nn", "xy"};

const char* const kCommands[] = {"ProCmdRegenPart",       "ProCmdWinClose",       "ProCmdModelSave",
                                 "ProCmdOduiDsfCopyGeom", "ProCmdViewRefit",      "ProCmdInfoModel",
                                 "ProCmdEditDelete",      "ProCmdDwgRegenModel",  "ProCmdModelEraseNotDisp",
                                 "ProCmdMmParams",        "ProCmdViewSpinCenter", "ProCmdUtilAppearance"};

const char* const kWidgets[] = {"main_dlg_cur", "file_saveas", "file_open", "Odui_Dlg_00",
                                "relation_dlg", "param_dlg",   "appl_casc", "ModelTree"};

std::string upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return char(std::toupper(c)); });
    return text;
}

enum class ValueKind { Path, Switch, Number, Word, Text };

ValueKind kindOf(const std::string& name) {
    const auto endsWith = [&](const char* suffix) {
        const std::string s(suffix);
        return name.size() >= s.size() && name.compare(name.size() - s.size(), s.size(), s) == 0;
    };
    for (const char* s : kPathSuffixes) {
        if (endsWith(s))
            return ValueKind::Path;
    }
    for (const char* s : kSwitchSuffixes) {
        if (endsWith(s))
            return ValueKind::Switch;
    }
    for (const char* s : kNumberSuffixes) {
        if (endsWith(s))
            return ValueKind::Number;
    }
    for (const char* s : kTextSuffixes) {
        if (endsWith(s))
            return ValueKind::Text;
    }
    return ValueKind::Word;
}

constexpr std::size_t kNamePool = 150000;
constexpr std::size_t kSeenPool = 200000;
constexpr std::size_t kMapkeyPool = 2000;

} // namespace

ConfigGenerator::ConfigGenerator(std::uint64_t seed) : m_state(seed) {
    m_names.reserve(kNamePool);
    for (std::size_t i = 0; i < kNamePool; ++i) {
        std::string name;
        if (chance(60))
            name = std::string(pick(kPrefixes)) + '_';
        name += pick(kNouns);
        if (chance(70))
            name += std::string("_") + pick(kNouns);
        switch (below(10)) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4:
            name += std::string("_") + pick(kPathSuffixes);
            break;
        case 5:
            name += std::string("_") + pick(kSwitchSuffixes);
            break;
        case 6:
            name += std::string("_") + pick(kNumberSuffixes);
            break;
        case 7:
            name += std::string("_") + pick(kTextSuffixes);
            break;
        default:
            name += std::string("_") + pick(kWordSuffixes);
            break;
        }
        m_names.push_back(std::move(name));
    }
    m_seen.reserve(kSeenPool);
}

std::uint64_t ConfigGenerator::next() {
    // splitmix64: small, fast and the same everywhere
    std::uint64_t z = (m_state += 0x9E3779B97F4A7C15ULL);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

std::string ConfigGenerator::optionName() {
    return m_names[below(m_names.size())];
}

std::string ConfigGenerator::folder() {
    return chance(10) ? pick(kUmlautFolders) : pick(kFolders);
}

std::string ConfigGenerator::path() {
    const std::string version = std::to_string(2 + below(9)) + ".0";
    switch (below(7)) {
    case 0:
        return std::string("C:\\ptc\\creo_") + version + "\\Common Files\\" + pick(kPathWords) + "\\" +
               pick(kPathWords) + "\\" + pick(kPathWords) + "_" + pick(kPathWords) + "." + pick(kExtensions);
    case 1:
        return std::string("\\\\SERVER") + std::to_string(1 + below(4)) + "\\CAD\\Creo_Config\\" + pick(kPathWords) +
               "\\" + folder() + "\\" + pick(kPathWords) + "\\";
    case 2:
        return std::string("$PRO_DIRECTORY\\text\\") + pick(kPathWords) + "\\" + pick(kPathWords) + "\\" +
               pick(kPathWords) + "_" + std::to_string(below(1000)) + "." + pick(kExtensions);
    case 3:
        return std::string("D:\\Konstruktion\\Standards\\") + folder() + "\\" + pick(kPathWords) + "\\" +
               pick(kPathWords) + "_" + std::to_string(below(1000));
    case 4:
        return std::string("C:\\Users\\Public\\Documents\\Creo Standards\\") + pick(kPathWords) + "\\" +
               pick(kPathWords) + " " + pick(kPathWords) + "." + pick(kExtensions);
    case 5:
        return std::string("$CREO_COMMON_FILES\\ifx\\parts\\prolibrary\\") + pick(kPathWords) + "\\" +
               pick(kPathWords) + "\\" + pick(kPathWords) + ".pro";
    default:
        return std::string("P:\\CAD\\Creo ") + version + "\\" + folder() + "\\" + pick(kPathWords) + "\\" +
               pick(kPathWords) + "." + pick(kExtensions);
    }
}

std::string ConfigGenerator::optionLine() {
    std::string name = optionName();
    std::string val;
    switch (kindOf(name)) {
    case ValueKind::Path:
        val = path();
        break;
    case ValueKind::Switch:
        val = pick(kSwitches);
        break;
    case ValueKind::Number:
        val =
            chance(50) ? std::to_string(below(100000)) : std::to_string(below(500)) + "." + std::to_string(below(1000));
        break;
    case ValueKind::Text:
        val = pick(kTexts);
        break;
    case ValueKind::Word:
        val = pick(kWords);
        break;
    }
    if (chance(4))
        name = upper(name); // older files were often written in capitals
    std::string line = name;
    line += chance(3) ? "  " : " ";
    line += val;
    if (chance(2))
        line += "  "; // trailing blanks left by editors
    return line;
}

std::string ConfigGenerator::commentLine() {
    switch (below(5)) {
    case 0:
        return std::string("! Ge\344ndert von ") + pick(kPeople) + " am " + std::to_string(1 + below(28)) + "." +
               std::to_string(1 + below(12)) + "." + std::to_string(2005 + below(20));
    case 1:
        return std::string("!").append(optionLine()); // an option switched off
    case 2:
    case 3:
        return std::string("! alte Einstellung, ersetzt durch ") + optionName();
    default:
        return std::string("! ") + pick(kCommentTexts);
    }
}

std::string ConfigGenerator::favoriteLine() {
    return std::string("browser_favorite C:\\Program Files\\PTC\\Creo ") + std::to_string(2 + below(9)) +
           ".0\\Common Files\\help\\" + pick(kPathWords) + "\\" + pick(kPathWords) + "_index.htm";
}

void ConfigGenerator::startMapkey() {
    m_pending.clear();
    m_pendingAt = 0;
    if (!m_mapkeys.empty() && chance(15)) {
        m_pending = m_mapkeys[below(m_mapkeys.size())];
        return;
    }
    const std::string label = std::string(pick(kPathWords)) + " " + pick(kNouns);
    m_pending.push_back(std::string("mapkey ") + pick(kMapkeyKeys) + " @MAPKEY_NAME" + label + ";@MAPKEY_LABEL" +
                        label + ";\\");
    const std::size_t steps = 2 + below(10);
    for (std::size_t i = 0; i < steps; ++i) {
        std::string step = "mapkey(continued) ";
        switch (below(4)) {
        case 0:
            step += std::string("~ Command `") + pick(kCommands) + "` ;";
            break;
        case 1:
            step += std::string("~ Activate `") + pick(kWidgets) + "` `" + pick(kPathWords) + "_" + pick(kNouns) +
                    "_button`;";
            break;
        case 2:
            step += std::string("~ Select `") + pick(kWidgets) + "` `PHTLeft.AssyTree` 1 `node" +
                    std::to_string(below(5000)) + "`;";
            break;
        default:
            step += std::string("~ Input `") + pick(kWidgets) + "` `InputPanel" + std::to_string(1 + below(9)) + "` `" +
                    pick(kPathWords) + "_" + std::to_string(below(1000)) + "`;";
            break;
        }
        if (i + 1 < steps)
            step += "\\";
        m_pending.push_back(std::move(step));
    }
    if (m_mapkeys.size() < kMapkeyPool)
        m_mapkeys.push_back(m_pending);
    else
        m_mapkeys[below(kMapkeyPool)] = m_pending;
}

void ConfigGenerator::remember(const std::string& line) {
    if (m_seen.size() < kSeenPool)
        m_seen.push_back(line);
    else if (chance(20))
        m_seen[below(kSeenPool)] = line;
}

void ConfigGenerator::appendLine(std::string& out) {
    if (m_pendingAt < m_pending.size()) {
        out += m_pending[m_pendingAt++];
        return;
    }
    // Shares of the kinds in thousandths; options take the rest.
    constexpr std::size_t kRepeat = 120;
    constexpr std::size_t kBlank = kRepeat + 50;
    constexpr std::size_t kMapkey = kBlank + 30;
    constexpr std::size_t kComment = kMapkey + 70;
    constexpr std::size_t kFavorite = kComment + 15;

    const std::size_t r = below(1000);
    if (r < kRepeat && !m_seen.empty()) {
        out += m_seen[below(m_seen.size())];
        return;
    }
    if (r < kBlank) {
        if (chance(15))
            out += "   ";
        return;
    }
    if (r < kMapkey) {
        startMapkey();
        out += m_pending[m_pendingAt++];
        return;
    }
    std::string line;
    if (r < kComment)
        line = commentLine();
    else if (r < kFavorite)
        line = favoriteLine();
    else
        line = optionLine();
    out += line;
    remember(line);
}

std::string generateConfigText(std::uint64_t lineCount, std::uint64_t seed) {
    ConfigGenerator generator(seed);
    std::string text;
    text.reserve(std::size_t(lineCount) * 56);
    for (std::uint64_t i = 0; i < lineCount; ++i) {
        generator.appendLine(text);
        text += "\r\n";
    }
    return text;
}

} // namespace quenfor::bench
