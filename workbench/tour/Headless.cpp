#include "tour/Headless.h"

#include "board/BoardTexts.h"
#include "board/BoardView.h"
#include "checks/ResultFiles.h"
#include "checks/ResultsPage.h"
#include "feature/FeaturePane.h"
#include "layers/LayerTable.h"
#include "pages/EdaPage.h"
#include "pages/EnginePane.h"
#include "pages/SymbolsPage.h"
#include "tour/HeadlessLayers.h"
#include "ui/Units.h"
#include "window/BoardPage.h"
#include "window/KeysDialog.h"
#include "window/MainWindow.h"

#include <UIAPICommon.h>

#include <glog/logging.h>

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QJsonArray>
#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QTimer>

#include <algorithm>

namespace Workbench {

namespace {

using namespace KVCAM::UIAPI;

// Takes screenshots into a folder and keeps their paths.
class Camera
{
public:
    explicit Camera(QString const & folder) : m_folder(folder) {}

    void take(QWidget & widget, QString const & name)
    {
        for (int pass = 0; pass < 2; ++pass) { // layouts settle; texts in another language take both
            QApplication::processEvents();
        }
        for (auto * view : widget.findChildren<BoardView *>()) {
            if (view->isVisibleTo(&widget)) { // there may be a hidden one for each of 2,000 steps
                view->finishPicture();
            }
        }
        QString const path = m_folder.filePath(name);
        if (widget.grab().save(path)) {
            m_pictures.append(path);
        } else {
            LOG(ERROR) << "workbench: cannot write " << path.toStdString();
            m_errors.append(QJsonObject{{"file", path}, {"text", "the screenshot cannot be written"}});
        }
    }
    QJsonArray const & pictures() const { return m_pictures; }
    QJsonArray const & errors() const { return m_errors; }

private:
    QDir m_folder;
    QJsonArray m_pictures;
    QJsonArray m_errors;
};

void press(QWidget & field, int key, QString const & text = {})
{
    for (auto const kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(kind, key, Qt::NoModifier, text);
        QApplication::sendEvent(&field, &event);
    }
    QApplication::processEvents(); // a size is taken after its key event
}

// Replaces the text of the field.
void type(QLineEdit & field, QString const & text)
{
    field.selectAll();
    for (QChar const letter : text) {
        press(field, letter.unicode(), letter);
    }
}

QJsonArray layersOf(Session const & session)
{
    QJsonArray layers;
    for (Session::Layer const & layer : session.layers()) {
        QJsonArray counts;
        for (std::optional<int> const & count : layer.features) {
            counts.append(count ? QJsonValue(*count) : QJsonValue());
        }
        layers.append(QJsonObject{{"row", layer.info.row},
                                  {"name", QString::fromStdString(layer.info.name)},
                                  {"context", QString::fromStdString(layer.info.context)},
                                  {"type", QString::fromStdString(layer.info.type)},
                                  {"polarity", QString::fromStdString(layer.info.polarity)},
                                  {"features", counts}});
    }
    return layers;
}

// The errors of the job's files and of the camera.
QJsonArray errorsOf(Session const & session, Camera const & camera)
{
    QJsonArray errors = camera.errors();
    for (Session::Layer const & layer : session.layers()) {
        for (std::size_t i = 0; i < layer.errors.size(); ++i) {
            if (!layer.errors[i].isEmpty()) {
                errors.append(QJsonObject{{"layer", QString::fromStdString(layer.info.name)},
                                          {"step", QString::fromStdString(session.steps()[i].name)},
                                          {"text", layer.errors[i]}});
            }
        }
    }
    return errors;
}

QJsonObject switchThereAndBack(BoardView const & view, std::optional<KVCAM::Embedded::Box> const & outline)
{
    Unit const unit = Ext::unitOf(view.handle());
    setStepConfigToAPI(view.handle());
    QJsonObject facts{{"name", QString::fromStdString(view.step())},
                      {"unit", QString::fromStdString(getUnitString(view.handle()))},
                      {"engine before", toJson(KVCAM::Embedded::liveState())}};
    QJsonArray sizes;
    for (Unit const shown : {unit, otherUnit(unit)}) {
        if (shown != unit) {
            giveUnit(view.handle(), shown);
            facts["engine after"] = toJson(KVCAM::Embedded::liveState());
        }
        if (outline) {
            sizes.append(
                sizeText(view.handle(), outline->right - outline->left, outline->top - outline->bottom));
        }
    }
    giveUnit(view.handle(), unit);
    facts["outline"] = sizes;
    return facts;
}

// Presses the keys of a sequence and shows the hot keys.
QJsonObject useHotkeys(MainWindow & window, Camera & camera)
{
    auto const & status = *window.findChild<QLabel *>("hot keys");
    BoardView & view = *window.board().currentView();
    SNAP_TYPE_MODE const mode = getSnapType(view.handle());
    view.setFocus();
    press(view, Qt::Key_S);
    QJsonObject facts{{"pending", status.text()}};
    camera.take(window, "hot-key-pending.png");
    press(view, Qt::Key_G);
    facts["done"] = status.text();
    facts["snap"] = static_cast<int>(getSnapType(view.handle()));
    setSnapType(view.handle(), mode);
    KeysDialog & sheet = *window.showKeys();
    camera.take(sheet, "hot-keys.png");
    sheet.showOwnFile();
    camera.take(sheet, "hot-keys-file.png");
    sheet.close();
    QJsonArray findings;
    for (Ext::HotkeyFinding const & finding : Ext::checkHotkeyFile(Ext::hotkeyFile).findings) {
        findings.append(finding.text);
    }
    facts["findings"] = findings;
    return facts;
}

// Looks at a pad and changes its width as a user would, by a text that is refused and by a calculation, and
// takes the change back.
QJsonObject useFeature(MainWindow & window, Camera & camera)
{
    BoardView & view = *window.board().currentView();
    auto const & features = view.features();
    auto const pad = std::find_if(features.begin(), features.end(), [](auto const & feature) {
        return feature.kind == 'P' &&
               Ext::Symbol::parse(QString::fromStdString(feature.symbol), Unit::Inch).ok;
    });
    if (pad == features.end()) {
        return {};
    }
    FeaturePane & pane = window.board().feature();
    auto const text = [&pane](char const * name) { return pane.findChild<QLabel *>(name)->text(); };
    Unit const unit = Ext::unitOf(view.handle());
    int const index = pad->index;
    view.select({index});
    QJsonObject facts{{"layer", QString::fromStdString(view.layer())},
                      {"feature", text("feature")},
                      {"description", text("description")},
                      {"size", text("size")},
                      {"net", text("net")},
                      {"position", text("position")}};
    camera.take(window, "feature.png");
    auto & width = *pane.findChild<QLineEdit *>("width");
    window.board().openFeature();
    type(width, "9000000*2");
    facts["refused"] = text("verdict");
    press(width, Qt::Key_Return);
    type(width, unit == Unit::Inch ? "10+2.5" : "254+63.5");
    facts["typed"] = text("verdict");
    press(width, Qt::Key_Return);
    QApplication::processEvents(); // the field is done with its key
    facts["symbol"] = QString::fromStdString(
        std::find_if(view.features().begin(), view.features().end(), [index](auto const & feature) {
            return feature.index == index;
        })->symbol);
    facts["changed size"] = text("size");
    camera.take(window, "feature-changed.png");
    pane.showNames();
    camera.take(window, "feature-names.png");
    view.setFocus(); // hides the list
    window.setLanguage(LANGUAGE_CHINESE);
    camera.take(pane, "feature-chinese.png"); // also delivers the language change
    facts["description in Chinese"] = text("description");
    window.setLanguage(LANGUAGE_ENGLISH);
    facts["undone"] = KVCAM::API::Undo(view.job(), view.step());
    window.board().refresh();
    return facts;
}

// Shows all layers, first the whole board and then a pad of the selected layer from near.
void showPicture(MainWindow & window, Camera & camera)
{
    auto & layers = *window.findChild<LayerTable *>();
    BoardView & view = *window.board().currentView();
    layers.tickAll(true);
    camera.take(window, "board-whole.png");
    auto const & shapes = view.shapes();
    auto const pad = std::find_if(shapes.begin(), shapes.end(), [](FeatureShape const & shape) {
        return shape.kind == FeatureShape::Kind::Pad;
    });
    if (pad != shapes.end()) {
        view.centreOn(pad->place.x(), pad->place.y());
    }
    view.zoomIn();
    camera.take(window, "board-zoomed.png");
    layers.tickAll(false);
    view.zoomHome();
}

// Shows the link with a message that the program sends to itself. If another program has the port, nothing is
// sent: it would receive the message.
QJsonObject useEdaPage(MainWindow & window, Camera & camera)
{
    window.showPage("eda");
    Ext::EdaLinkState const before = Ext::edaLinkState();
    if (before.bound) {
        auto & page = *window.findChild<EdaPage *>();
        page.compose({{"command", "show"}, {"nets", QJsonArray{"GND", "VCC"}}}, EdaPage::receivePort);
        QEventLoop waiting;
        QObject::connect(Ext::edaLink(), &ConnectEDA::datagramReceived, &waiting, &QEventLoop::quit);
        QTimer::singleShot(2000, &waiting, &QEventLoop::quit);
        page.send();
        waiting.exec();
        setEdaPort(before.port);
    }
    camera.take(window, "eda.png");
    Ext::EdaLinkState const state = Ext::edaLinkState();
    return {{"bound", state.bound},
            {"sent", static_cast<int>(state.sent)},
            {"received", static_cast<int>(state.received)}};
}

QJsonObject configuration()
{
    QJsonArray templates;
    for (auto const & [index, tmpl] : getAutoMatrixTmpMap()) {
        templates.append(QJsonObject{{"index", index}, {"name", QString::fromStdString(tmpl.name)}});
    }
    std::vector<std::string> attributes;
    getParentAttribute(attributes);
    QJsonArray findings;
    for (Ext::Diagnostic const & finding : Ext::diagnostics()) {
        findings.append(QJsonObject{{"file", finding.file}, {"key", finding.where}, {"text", finding.text}});
    }
    return {{"threads", getThreadCount()},
            {"templates", templates},
            {"attributes", static_cast<int>(attributes.size())},
            {"findings", findings}};
}

// Runs the checks, writes their files, and shows the results in both units and the narrowest track on the
// board.
QJsonObject useResults(MainWindow & window, CommandLine files, Ext::AnalysisReport const * baseline,
                       Camera & camera)
{
    if (files.summary.isEmpty()) {
        files.summary = files.output + "/summary.json";
    }
    BoardView & view = *window.board().currentView();
    WrittenResults const written = writeResults(window.results(), files, baseline);
    QJsonObject facts = toJson(window.results().run());
    facts["step"] = QString::fromStdString(view.step());
    facts["summary"] = written.files.contains(files.summary) ? QJsonValue(files.summary) : QJsonValue();
    facts["files"] = QJsonArray::fromStringList(written.files);
    facts["errors"] = QJsonArray::fromStringList(written.errors);
    Unit const unit = Ext::unitOf(view.handle());
    window.showPage("results");
    bool const hasTracks = window.results().showCheck(signalTable, linesNumber);
    for (Unit const shown : {Unit::Inch, Unit::Millimetre}) {
        giveUnit(view.handle(), shown);
        camera.take(window, shown == Unit::Inch ? "results-inch.png" : "results-mm.png");
    }
    giveUnit(view.handle(), unit);
    window.showPage("board");
    if (hasTracks && !view.marks().empty()) {
        camera.take(window, "results-on-board.png");
        view.setMarks({});
    }
    return facts;
}

} // namespace

QJsonObject runHeadless(MainWindow & window, Session const & session, CommandLine const & commandLine,
                        Ext::AnalysisReport const * baseline)
{
    // Nobody can close a box: its text goes into the facts instead.
    QJsonArray boxes;
    auto questions = Ext::MessageAnswer::No;
    Ext::setMessagePresenter([&](Ext::Message const & message) {
        boxes.append(message.text);
        return message.kind == Ext::MessageKind::Question ? questions : Ext::MessageAnswer::Ok;
    });
    Camera camera(commandLine.output);
    window.resize(1440, 900); // pictures do not depend on the screen
    window.arrange();
    window.show();
    QJsonArray steps;
    for (std::size_t i = 0; i < session.steps().size(); ++i) {
        QJsonObject facts = switchThereAndBack(window.board().view(i), session.steps()[i].outline);
        QJsonObject repeats;
        for (auto const & [name, count] : session.steps()[i].repeats) {
            repeats[QString::fromStdString(name)] = count;
        }
        if (!repeats.isEmpty()) {
            facts["repeats"] = repeats;
        }
        steps.append(facts);
    }
    setStepConfigToAPI(window.board().currentView()->handle());
    camera.take(window, "workbench.png");
    showPicture(window, camera);
    for (QString const page : {"symbols", "settings", "templates", "attributes"}) {
        window.showPage(page);
        camera.take(window, page + ".png");
    }
    QJsonObject const eda = useEdaPage(window, camera);
    window.showPage("board");
    QJsonObject const hotkeys = useHotkeys(window, camera);
    TakePicture const take = [&camera](QWidget & widget, QString const & name) { camera.take(widget, name); };
    QJsonObject const filters = useFilters(window, take);
    QJsonObject const comparison = useComparison(window, session, take);
    questions = Ext::MessageAnswer::Yes;
    QJsonObject const references = useReferences(window, take);
    QJsonObject const undone = useUndo(window, session, take);
    questions = Ext::MessageAnswer::No;
    QJsonObject const feature = useFeature(window, camera);
    QJsonObject const analysis = useResults(window, commandLine, baseline, camera);
    QJsonArray errors = errorsOf(session, camera);
    for (auto const & error : analysis["errors"].toArray()) {
        errors.append(QJsonObject{{"step", analysis["step"]}, {"text", error}});
    }
    Ext::setMessagePresenter({});
    return {{"job", QString::fromStdString(session.job())},
            {"directory", session.directory()},
            {"steps", steps},
            {"layers", layersOf(session)},
            {"symbols", toJson(symbolRows(session.job()))},
            {"EDA link", eda},
            {"hot keys", hotkeys},
            {"filters", filters},
            {"comparison", comparison},
            {"references", references},
            {"undo", undone},
            {"feature", feature},
            {"analysis", analysis},
            {"configuration", configuration()},
            {"boxes", boxes},
            {"errors", errors},
            {"screenshots", camera.pictures()}};
}

} // namespace Workbench
