#include "document/filefamily.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

bool endsWithEither(QStringView name, QStringView lower, QStringView upper) {
    return name.endsWith(lower) || name.endsWith(upper);
}

void setPicker(FileFamily& f, QString list, QString optionFile, QString knowledgeBase, QString saveName) {
    f.pickerList = std::move(list);
    f.optionListFile = std::move(optionFile);
    f.knowledgeBaseFile = std::move(knowledgeBase);
    f.defaultSaveName = std::move(saveName);
    f.pickerVisible = true;
}

} // namespace

QString FileFamily::pickerLoadedStatus() const {
    if (optionListFile.isEmpty())
        return {};
    return optionListFile + u" wurde gelesen"_s;
}

FileFamily fileFamilyOf(QStringView name) {
    FileFamily f; // the common settings: pickers and markers hidden, add frame and cmdAlle shown

    if (endsWithEither(name, u"pcf", u"PCF")) {
        f.kind = FamilyKind::Pcf;
        f.optionMenuEnabled = false;
        setPicker(f, u"List2pcf"_s, u"quenfor.pcf"_s, u"pcf_opts.txt"_s, u"quen.pcf"_s);
    } else if (endsWithEither(name, u"dtl", u"DTL")) {
        f.kind = FamilyKind::Dtl;
        f.optionMenuEnabled = false;
        setPicker(f, u"List2dtl"_s, u"quenfor.dtl"_s, u"dtl_opts.txt"_s, u"din.dtl"_s);
    } else if (endsWithEither(name, u"pro", u"PRO") || endsWithEither(name, u"sup", u"SUP") ||
               endsWithEither(name, u".scl", u".SCL")) {
        f.kind = FamilyKind::Config;
        f.optionFrameVisible = true;
        f.categoryBoxVisible = true;
        setPicker(f, u"List2cfg"_s, u"quenfor.pro"_s, u"config_opts.txt"_s, u"config.pro"_s);
    }

    // A search.pro also ends in "pro": it keeps the config picker source loaded in the
    // background, but none of the option tools apply to a list of folders.
    if (endsWithEither(name, u"search.pro", u"SEARCH.PRO")) {
        f.kind = FamilyKind::SearchPro;
        f.searchProFrameVisible = true;
        f.categoryBoxVisible = false;
        f.optionFrameVisible = false;
        f.pickerVisible = false;
        f.addFrameVisible = false;
        f.optionMenuEnabled = false;
        f.defaultSaveName = u"search.pro"_s;
    }

    if (endsWithEither(name, u".scl", u".SCL")) {
        f.kind = FamilyKind::Scl;
        f.colorButtonVisible = true;
    }
    return f;
}

QString familyKindName(FamilyKind kind) {
    switch (kind) {
    case FamilyKind::None:
        return u"none"_s;
    case FamilyKind::Config:
        return u"config"_s;
    case FamilyKind::Dtl:
        return u"dtl"_s;
    case FamilyKind::Pcf:
        return u"pcf"_s;
    case FamilyKind::SearchPro:
        return u"searchpro"_s;
    case FamilyKind::Scl:
        return u"scl"_s;
    }
    return {};
}

} // namespace quenfor
