#pragma once

#include "desktools/sclcolour.h"

#include <QColor>
#include <QWidget>

#include <functional>
#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;

namespace quenfor {

class StatusHints;

// frmColor, the "Pro/E Farb-Box": a colour as the CAD system writes it (three percentages) and as
// RGB, both kept in step, with a swatch, the system's colour dialog and the line for a colour
// file to copy. It can take the main window's marked line when that is a colour line.
class ColourBoxWindow : public QWidget {
    Q_OBJECT

public:
    // Gives the main window's marked line, or nothing when no line is marked.
    using MarkedLine = std::function<std::optional<QString>()>;
    explicit ColourBoxWindow(MarkedLine markedLine = {}, QWidget* parent = nullptr);

    Percentages percentages() const { return m_percent; }
    QColor colour() const;
    // The line the copy button puts on the clipboard.
    QString valueLine() const;

    void setColour(const QColor& colour);
    // Takes a colour line; false (and the reason in the status line) when it is none.
    bool takeLine(const QString& line);
    void takeMarkedLine(); // cmd_zeile
    void chooseColour();   // cmd_farbwahl
    bool copyLine();       // cmd_kopieren: false when a field holds no valid value

private:
    void buildWidgets();
    void percentEdited(int channel);
    void rgbEdited(int channel);
    void showColour();
    // The first field (or the name) that keeps the line from being copied; empty when none.
    QString firstRefusal() const;

    MarkedLine m_markedLine;
    Percentages m_percent{};
    std::array<QString, kColourChannels> m_refusals; // per channel, from the last edit
    std::array<QLineEdit*, kColourChannels> m_percentFields{};
    std::array<QLineEdit*, kColourChannels> m_rgbFields{};
    QComboBox* m_name = nullptr; // cmb_name
    QLabel* m_swatch = nullptr;  // lbl_farbe
    QLineEdit* m_line = nullptr; // txt_zeile
    QLabel* m_status = nullptr;
    StatusHints* m_hints = nullptr;
};

} // namespace quenfor
