#pragma once

#include "compare/configsource.h"
#include "document/documentstorage.h"
#include "ui/main/mainmenus.h"

#include <QMainWindow>
#include <QPointer>

class QDockWidget;
class QLabel;
class QStackedWidget;
class QTimer;

namespace quenfor {

class ColourPanel;
class DrawingCheckerWindow;
class DuplicateMapkeyWindow;
class FavoritesPanel;
class FormOpt;
class LintPanel;
class MapkeyListWindow;
class PathConverterWindow;
class PurgeWindow;
class ReplaceDialog;
class SearchProWindow;
class TastomatWindow;
class ConfigDocument;
class DocumentUndo;
class ContextMenuPanel;
class DocumentListView;
class EntryLinePanel;
class ExplanationPanel;
class FileChooserPanel;
class FolderPanel;
class PickerPanel;
class SearchDialog;
class StatusHints;
class TempDirPanel;
class ToolColumn;

// Form1, the program: the document in List1 with the entry line above it, tool buttons on the
// left, the option picker on the right, the status line below and the menus that open every
// other tool.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // The start-up order: colour scheme, temporary directory, the file of the command line
    // (arguments without the program name) or the last folder, then the file family.
    void startUp(const QStringList& arguments);

    ConfigDocument* document() const { return m_document; }
    void setStatus(const QString& text);
    QString status() const;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildLayout();
    void connectMenus();
    void connectEditing();
    void connectTools();
    void connectPanels();
    void connectKnowledge();
    void connectGenerators();
    void connectCadFiles();
    void connectDeskTools();
    void connectLint();
    void connectCompare();
    void openTextEditor();
    void openMessenger();

    // Option knowledge
    void explainEntryLine();
    ExplanationPanel* explanationPanel();

    // Generators
    void openSearchProGenerator();
    void showSearchProFrame();
    void addGhostOptions();
    void pickerEntryClicked(const QString& text);
    void takeOverSelection(const QString& pickerList);
    void showKnowledgeSearch();
    void sortByCategory(const QString& refusal);

    // Panels
    void showCentre(QWidget* page);
    void showChooser();
    void applyScheme(const QString& name);
    void checkStoredTempDir();
    void zoomToStandardSize();
    void resetSettings();

    // Files
    // Returns the note shown after the status (lines that end in LF alone), empty when none.
    QString openFile(const QString& path);
    // Puts note after the status line's text, once.
    void appendStatusNote(const QString& note);
    void openLastFile();
    void save();
    void connectUndo();
    StorageResult saveDocumentAsking();
    void showSearchDialog();
    void applyFamilyOf(const QString& fileName);
    void showFileLabel();

    // The list and the entry line
    void lineClicked(int row);
    void entryChanged(const QString& text);
    void showMarked(int row);
    void showContextMenu(const QPoint& globalPos);
    void runWholeDocumentTool(const std::function<QString()>& tool);
    void repairFragmentedFile();
    void splitMapkey();

    // The "Prüfen" view, made when first shown
    void showLintPanel();

    // "Vergleichen…" and the marks of lines a chosen config.sup locks or a later line replaces
    void openCompareWindow();
    void chooseConfigSup();
    void dropConfigSup();
    void refreshLineMarks();

    ConfigDocument* m_document;
    DocumentUndo* m_undo = nullptr;
    StatusHints* m_hints = nullptr;
    MainMenus m_menus;
    QLabel* m_fileLabel = nullptr;    // Label1
    QLabel* m_number = nullptr;       // lblnumber
    QLabel* m_status = nullptr;       // lblstatus
    QLabel* m_pathOk = nullptr;       // img_pathok
    QLabel* m_pathNotValid = nullptr; // img_pathnotvalid
    EntryLinePanel* m_entry = nullptr;
    DocumentListView* m_list = nullptr;
    ToolColumn* m_tools = nullptr;
    PickerPanel* m_picker = nullptr;
    ContextMenuPanel* m_contextMenu = nullptr;
    QStackedWidget* m_centre = nullptr;
    QPointer<SearchDialog> m_searchDialog;
    FileChooserPanel* m_chooser = nullptr;    // Dateiauswahl
    FolderPanel* m_folders = nullptr;         // frameDir
    TempDirPanel* m_tempDir = nullptr;        // Tempdir
    ColourPanel* m_colours = nullptr;         // Farben
    QPointer<ExplanationPanel> m_explanation; // frmErklaer, made on the first explanation
    FavoritesPanel* m_favorites = nullptr;    // Favoriten
    QPointer<DuplicateMapkeyWindow> m_duplicateMapkeys;
    QPointer<MapkeyListWindow> m_mapkeyList;
    QPointer<FormOpt> m_pathOptions;
    QPointer<SearchProWindow> m_searchPro;
    QPointer<ReplaceDialog> m_replace;
    QPointer<PathConverterWindow> m_pathConverter;
    QPointer<PurgeWindow> m_purge;
    QPointer<DrawingCheckerWindow> m_drawingChecker;
    QPointer<TastomatWindow> m_tastomat;
    // The desk tools, each opened once and brought to the front when chosen again.
    QPointer<QWidget> m_textEditor;
    QPointer<QWidget> m_pictureViewer;
    QPointer<QWidget> m_netSend;
    QPointer<QWidget> m_workTime;
    QPointer<QWidget> m_screenshot;
    QPointer<QWidget> m_interpolation;
    QPointer<QWidget> m_shooter;
    QPointer<QWidget> m_asciiTable;
    QPointer<QWidget> m_colourBox;
    QPointer<QWidget> m_about;
    QDockWidget* m_lintDock = nullptr;
    LintPanel* m_lintPanel = nullptr;
    QPointer<QWidget> m_compare;
    std::optional<ConfigSource> m_configSup; // chosen for this session only
    QTimer* m_marksTimer = nullptr;          // marks follow edits after a short pause
};

} // namespace quenfor
