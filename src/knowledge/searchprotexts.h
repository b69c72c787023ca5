#pragma once

#include <QString>
#include <QStringList>

namespace quenfor {

class ConfigDocument;

// The file name the generator gives the document.
inline constexpr char16_t kSearchProName[] = u"search.pro";

// "cmd_search_file": the current folder followed by "search.pro", with a separator between unless
// the folder already ends in one (a drive root).
QString searchProFileName(const QString& currentFolder);

// "Label1" after a walk: "Total:" and the number, no blank between.
QString searchProTotalText(qsizetype count);

// The note beside the count when folders could not be read, so nobody takes the list for complete;
// empty when every folder was read.
QString searchProUnreadableText(const QStringList& unreadable);

// The note that hidden folders (a leading "." on Unix, the hidden attribute on Windows) are not in
// the list, naming the first few; empty when none was left out.
QString searchProHiddenText(const QStringList& hidden);

// "cmd_wodenn": the three lines telling where the file is saved.
QStringList searchProSaveInfoLines();

// Hover hints of the generator's controls; the one of "cmd_search_file" names the folder.
struct SearchProHints {
    static QString folderList();                      // Dir1
    static QString generate();                        // Command1
    static QString resultList();                      // List1
    static QString transferAll();                     // cmd_toform
    static QString transferSelection();               // cmd_selectedtoform
    static QString createFile(const QString& folder); // cmd_search_file
};

// What the main window does with the generator's lines: appends them; after a transfer of the
// whole list a document without a file name is named "search.pro".
void appendSearchProLines(ConfigDocument& document, const QStringList& lines, bool all);

// Closing the generator names a document without a file name "search.pro".
void nameUnnamedSearchProDocument(ConfigDocument& document);

} // namespace quenfor
