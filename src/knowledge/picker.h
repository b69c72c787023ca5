#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace quenfor {

// The entries a picker list holds before any picker source file is read.
QStringList builtInPickerEntries(const QString& pickerList);

// "cmdAlle": the selected entries of the picker that belongs to the document's file, in list
// order, to be appended to the document. Which picker that is follows the last three characters
// of the file name, lower or upper case only; any other name takes nothing.
QStringList takeOverSelection(const QString& fileName, const QString& pickerList, const QStringList& entries,
                              const QList<int>& selectedRows);

inline constexpr char16_t kTakeOverStatus[] = u"Übernahme aus Vorauswahl";
inline constexpr char16_t kConfigPickerHint[] =
    u"wählen Sie in dieser Liste die zuzufügenden Einträge aus. Doppelklick oder Mehrfachselektion ist möglich.";
inline constexpr char16_t kTakeOverHint[] =
    u"Fügt die Auswahl der Liste hinzu. Beachten Sie dass die meisten Einträge sinnvoll bearbeitet werden müssen !";
inline constexpr char16_t kKnowledgeButtonHint[] =
    u"Den Erklärbär aufrufen. Mit der rechten Maustaste kann man in seinem Hirn schmökern.";

} // namespace quenfor
