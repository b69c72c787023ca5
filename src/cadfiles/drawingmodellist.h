#pragma once

#include "cadfiles/drawingmodel.h"

#include <QIODevice>
#include <QString>
#include <QStringList>

namespace quenfor {

// Drawings of current releases no longer hold a model name at the fixed header position, but they
// list their models themselves: after the text header ("#-END_OF_UGC_HEADER") a table of contents
// ("#UGC_TOC", fixed-length lines, chained by NEXT_TOC_ENTRY) gives offset and length of every
// section, and the section "#Dwg_Models" stores the names after the key "model_names".
//
// The names as the drawing stores them ("GEHAEUSE.PRT"), in its order; empty when the file is no
// drawing of that kind, holds no list, is damaged, missing or unreadable. Only the header, the
// tables of contents on the way and the section itself are read, so a huge file costs a few KiB.
// Names that are not UTF-8 are decoded with codepage.
QStringList readDrawingModelList(const QString& path, const QString& codepage = QStringLiteral("windows-1252"));
// The same from an open, seekable device.
QStringList readDrawingModelList(QIODevice& device, const QString& codepage = QStringLiteral("windows-1252"));

// The model name check and the drawing's own model list in one go (listedModels filled).
DrawingCheck checkDrawingWithModelList(const QString& path, const QString& codepage = QStringLiteral("windows-1252"));

// "Modelle laut Zeichnung: A.PRT, B.ASM"; empty when the drawing names no model.
QString drawingModelListText(const QStringList& names);

} // namespace quenfor
