#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace quenfor {

struct ColourScheme;

// A swatch that previews its scheme: the scheme's name in the text colour on the background
// colour, named after the scheme.
QPushButton* makeColourSwatch(const ColourScheme& scheme, QWidget* parent);

// The colour panel "Farben": one swatch per colour scheme of the list. Choosing a swatch names the
// scheme and hides the panel; the window applies the scheme.
class ColourPanel : public QFrame {
    Q_OBJECT

public:
    explicit ColourPanel(QWidget* parent = nullptr);

    // The active scheme's name, kept in the hidden label "lbl_schwarzweissblau" that is stored at
    // closing.
    QString schemeName() const;
    void setSchemeName(const QString& name);

signals:
    void schemeChosen(const QString& name);
    void closeRequested();

private:
    void choose(const QString& name);

    QLabel* m_schemeLabel;
};

} // namespace quenfor
