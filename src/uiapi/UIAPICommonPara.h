#pragma once

#include "../analysis/AnalysisRecords.h"
#include "../layers/ReferenceLayerInfo.h"
#include "UIAPICommonExport.h"
#include "ViewRecords.h"

#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QPoint>
#include <QString>
#include <QVector>

#include <map>
#include <string>
#include <utility>
#include <vector>

class QObject;
class QWidget;

/// \addtogroup view_access
namespace KVCAM::UIAPI {

class ConnectEDA;

namespace Ext {
struct EdaLinkState;
enum class EdaSendResult : int;
} // namespace Ext

/// The per-view and UI-wide state of the process, and the rules that need it: one object, created by the
/// first call that needs it and never destroyed. GUI thread only; nothing is locked.
///
/// For an unknown view, a per-view method logs "KVCAM UIAPI <operation> error" at ERROR under the name
/// "UIAPICommonPara" and returns the neutral value given in its comment; output arguments are unchanged.
///
/// No method throws: exceptions from an engine or the allocator are logged as the two lines of a caught
/// exception, and the method returns 0, false, null or nothing. Only instance() and the copy constructor,
/// which have no neutral result, let std::bad_alloc through.
///
/// Copies are detached snapshots, never a second singleton. Objects cannot be destroyed.
class UIAPICOMMON_EXPORT UIAPICommonPara
{
public:
    /// The object, created at the first call. Creating it asks the host for paths; a host that calls back
    /// meanwhile gets the same object, whose parts not yet loaded are empty.
    static UIAPICommonPara * instance();
    /// Null until the first call of instance(). Do not assign to it.
    static UIAPICommonPara * m_pUIAPICommonParaInstance;

    ///@{
    /// Copies every record, table and setting; the EDA link is shared.
    UIAPICommonPara(UIAPICommonPara const & other);
    UIAPICommonPara & operator=(UIAPICommonPara const & other);
    ///@}

    // --- View records -------------------------------------------------------------------------------------

    /// Registers a view and pushes its record to the engine (show_param, Selection, select_info). False, with
    /// an ERROR line, for a null handle; false, silently, for a handle already registered.
    bool insertStepConfig(Step_Config const & config);
    /// Copies the record out.
    void getStepConfig(void const * view, Step_Config & out) const;
    /// The unit code; -1 for an unknown view.
    int getUnit(void const * view) const;
    /// Stores the unit and pushes show_param.
    void setUnit(void const * view, int unit);
    /// Copies the show parameters out.
    void getShowPara(void const * view, show_param & out) const;
    /// Stores and pushes. An unknown view is reported as "setSelection".
    void setShowPara(void const * view, show_param const & value);
    /// Copies the selection settings out.
    void getSelection(void const * view, Selection & out) const;
    /// Stores and pushes.
    void setSelection(void const * view, Selection const & value);
    /// Copies the select_info out.
    void getSelectInfo(void const * view, select_info & out) const;
    /// Stores and pushes. An unknown view is reported as "setSelection".
    void setSelectInfo(void const * view, select_info const & value);

    /// {127, 7, 5} for an unknown view.
    Snap_Control getSnapControl(void const * view) const;
    /// Stores the first word and the mode; only setSnapSize() changes the size. Nothing is pushed.
    void setSnapControl(void const * view, Snap_Control const & value);
    /// 5 for an unknown view, after "KVCAM UIAPI getSnapControl error, use default snap size!".
    int getSnapSize(void const * view) const;
    /// Nothing is pushed. An unknown view is reported as "setSnapControl".
    void setSnapSize(void const * view, int size);
    /// The mode of the view's record without copying the record; 7 for an unknown view (reported as
    /// "getStepConfig"). The flat function of this name forwards to this.
    SNAP_TYPE_MODE getSnapMode(void const * view) const;

    /// The view's edit buffer, owned by this object and valid until it is assigned to; null for an unknown
    /// view.
    Edit_Buffer * getEditBuffer(void const * view);
    /// Replaces the feature lists of the view's edit buffer.
    void setEditBufferFeatureInfo(void const * view, std::map<std::string, FeatureList> const & features);
    /// The view's coordinate read-out, owned by this object and valid until it is assigned to; null for an
    /// unknown view, which is reported as "getEditBuffer".
    coordinate * getCoordinate(void const * view);

    /// Pushes show_param, Selection and select_info of a view to the engine, in this order. For an unknown
    /// view the ERROR line is followed by an information box without a parent. If an engine that calls back
    /// removes the record by assigning to this object, the remaining pushes are replaced by the ERROR line
    /// alone.
    void setStepConfigToAPI(void const * view);

    // --- UI-wide state ------------------------------------------------------------------------------------

    /// Default 1, English.
    LANGUAGE_MODE getCurrentLanguageMode() const;
    /// Does not change its argument.
    void setCurrentLanguageMode(LANGUAGE_MODE & mode);
    ///@{
    /// Default false.
    bool getPanelPositionStatus() const;
    void setPanelPositionStatus(bool status);
    ///@}
    ///@{
    /// Default false.
    bool getCoordinateStatus() const;
    void setCoordinateStatus(bool status);
    ///@}
    ///@{
    /// Whether the application runs as a stand-alone program. Default true.
    bool KvcamAsExe() const;
    void SetKvcamAsExe(bool value);
    ///@}
    ///@{
    /// Default (0, 0).
    QPoint getCoordinatePos() const;
    void setCoordinatePos(QPoint pos);
    ///@}
    /// The input widget, not owned, null until set. Whoever sets it must reset it before the widget is
    /// destroyed.
    QWidget * getInputPtr() const;
    /// Logs "setInputPtr _input " and the pointer at INFO if none was set; otherwise the old and then the new
    /// one at WARNING.
    void setInputPtr(QWidget * widget);
    ///@{
    /// The split widget, not owned, null until set. To be reset like the input widget.
    QWidget * getSplitPtr() const;
    void setSplitPtr(QWidget * widget);
    ///@}
    /// The layers that the host marks; owned by this object and never null.
    LayerState * getLayerState();

    // --- Attributes ---------------------------------------------------------------------------------------

    /// Assigns the values offered by a built-in system attribute such as ".drill"; none for any other name.
    void getChildAttribute(std::string name, std::vector<std::string> & out) const;

    // --- Units --------------------------------------------------------------------------------------------
    // An unknown view is treated as an inch view, after the ERROR line of getShowPara().

    /// Converts from the other large unit to the view's: inch at 5 decimals, else millimetre at 3.
    double getUnitData(void const * view, double value) const;
    /// Large unit to nanometres (kind 0) or micrometres (kind 1); 0.0 for another kind.
    double getUnitAPIData(void const * view, int kind, double value) const;
    /// In a metric view, micrometres to mil for kinds 0 and 1, 0.0 for another kind. In other views, the
    /// value itself.
    double getUnitMilData(void const * view, int kind, double value) const;
    /// Micrometres to the large unit.
    double getUnitPointData(void const * view, double value) const;
    /// Mil to the small unit, truncated toward zero; saturates, NaN gives 0.
    int getUnitJudgeData(void const * view, double value) const;
    /// Mil to the small unit, unrounded.
    double getUnitJudgeDouble(void const * view, double value) const;
    /// Mil as text in the small unit: six significant digits for inch, else `precision` decimals (at most
    /// 1074; -128, QLocale::FloatingPointShortest, gives as many as the value needs, any other negative value
    /// 6).
    QString getUnitJudgeString(void const * view, double value, int precision) const;
    /// Micrometres as text in the large unit, 3 decimals.
    QString getUnitJudgeStringMetric(void const * view, double value) const;
    /// Square inches as text: six significant digits for inch, else square millimetres with 4 decimals.
    QString getAreaUnitJudgeString(void const * view, double value) const;
    /// "sq/in" or "sq/mm".
    std::string getAreaUnitStringType(void const * view) const;
    /// Fixed notation with six decimals, without trailing zeros.
    std::string doubleToString(double value) const;
    /// The measured quantity of a check result in micrometres, by its kind; 0.0 for a kind that measures
    /// nothing and if the number of points does not match the kind.
    double getMeasureValue(check_info const & info) const;

    // --- Symbol names -------------------------------------------------------------------------------------
    // Sizes in a name are mil or micrometres. An unknown view is treated as not metric, after the ERROR line
    // of getUnit().

    /// Converts the lengths of a standard symbol in place: / 25.4 for unit 0, else * 25.4.
    void setSymbolUIData(QString & name, int unit) const;
    /// If the engine knows the name: converts every number from micrometres to mil at 3 decimals in a metric
    /// view.
    void setSymbolAPIData(void const * view, QString & name) const;
    /// Every number * 25.4 at 2 decimals in a metric view, else / 25.4 at 3 decimals.
    void setSymbolDataByUnit(void const * view, QString & name) const;
    /// Every number, in mil: in a metric view to micrometres at 2 decimals (a result one hundredth off a
    /// whole number becomes whole), else at 3 decimals.
    void setSymbolDataByMilUnit(void const * view, QString & name) const;
    /// The lengths of a standard symbol are mil: at 3 decimals for unit 0, else in micrometres as in
    /// setSymbolDataByMilUnit().
    std::string getSymbolNameByUnit(std::string const & name, int unit) const;
    /// Fills `names` with the symbols of the job "KVLIB", which is opened first if it is not open.
    void getKvlibSpecialSymbol(std::vector<std::string> & names) const;

    // --- Typed values -------------------------------------------------------------------------------------
    // A rejected value is shown in an information box. If the view handle is a living widget, it is the
    // parent.

    /// The value of an expression of numbers and "+", "-", "*", "/"; never fails.
    double caculateData(QString expression) const;
    /// False exactly when the earlier operator is "+" or "-" and the later one "*" or "/".
    bool judgeCaculate(QString & earlier, QString & later) const;
    /// False for an empty text; also false, with an ERROR line and a box, for two non-digits in a row.
    bool judgeCaculateIsStandard(QString expression) const;
    /// Whether a value in the view's small unit lies between bounds in mil, inclusive.
    bool isValueLegal(double value, double minimum, double maximum, void const * view) const;
    /// Same as isValueLegal().
    bool isValueLegal1(double value, double minimum, double maximum, void const * view) const;
    /// Whether a plain number lies between its bounds.
    bool isNumValueLegal(double value, double minimum, double maximum, void const * view) const;
    /// isValueLegal1() for every number of a symbol name up to the first rejected one.
    bool isSymbolValueLegal(QString name, double minimum, double maximum, void const * view) const;
    /// Fills `result` with the items that match a wildcard pattern, case-insensitively; an illegal pattern is
    /// logged and leaves it empty.
    void find_input_items(QList<QString> items, QString pattern, QList<QString> & result) const;

    // --- Forms --------------------------------------------------------------------------------------------

    /// Adds the values of the named controls to `json`, see the flat function of this name.
    void readListToJson(QList<QObject *> widgets, QJsonObject & json) const;
    /// Restores the members of `json` to the controls of the same names.
    void writeJsonToList(QJsonObject json, QList<QObject *> & widgets) const;

    // --- Ranges -------------------------------------------------------------------------------------------

    ///@{
    /// See the flat function of the same name.
    void getRanges(std::string const & rangeName, std::vector<Analysis_Ranges_Record> & out) const;
    int getRangesEnum(std::string const & tableName, std::string const & categoryName) const;
    std::string getRangesName(std::string const & tableName, int number) const;
    void changeRangesValue(std::string const & rangeName, std::string const & categoryName,
                           std::string const & levelName, double value);
    void getERFList(std::string folder, std::vector<std::string> & names) const;
    ///@}

    // --- Layer filters ------------------------------------------------------------------------------------
    // A request maps the keys "type", "context", "side" and "pos" to words joined by "|"; other keys are
    // ignored. Keys and words are case-sensitive, and an empty word is a word. Without words every layer is
    // accepted.

    /// Appends the names of a job's layers that all keys accept, in matrix order. If the engine throws, that
    /// is logged and nothing is appended.
    void selectLayersByType(QString const & job, std::vector<std::string> & out,
                            QMap<QString, QString> filters) const;
    /// Appends the words of an entry whose key is `key`.
    void fillLayerTypeFilters(QMap<QString, QString>::iterator & entry, QVector<QString> & filterWords,
                              QString const & key) const;
    /// Whether the layer's type is one of the words.
    bool TypeLayersFilter(layer_info & layer, QVector<QString> & words) const;
    /// Whether the layer's context is one of the words.
    bool ContextLayersFilter(layer_info & layer, QVector<QString> & words) const;
    /// Whether the layer's name is the first ("top"), the last ("bottom") or, if there are more than three,
    /// one in between ("inner") of the board signal layers.
    bool SideLayersFilter(layer_info & layer, QVector<QString> & words,
                          std::vector<std::string> & boardSignalLayers) const;
    /// Whether the polarity is "POS" with the word "positive" present, or "NEG" with "negative".
    bool PosLayersFilter(layer_info & layer, QVector<QString> & words) const;

    /// Replaces `out` with the affected layers, followed by the work layer unless it is one of them.
    /// Initially one empty name.
    void getAffectLayers(std::vector<std::string> & out) const;
    /// Replaces the affected layers returned by getAffectLayers().
    void setAffectLayers(std::vector<std::string> const & layers);
    /// Replaces the work layer; initially empty.
    void setWorkLayer(std::string const & layer);

    /// The board layers of a job that analysis and DFM checks read, see the flat function of this name.
    std::vector<std::string> getAnalyzeAndDFMLayers(QString const & job, QString const & step) const;

    // --- References and drawing layers --------------------------------------------------------------------

    ///@{
    /// See the flat function of the same name.
    void setReferenceLayerInfo(std::string const & job, std::string const & step,
                               std::vector<ReferenceLayerInfo> const & layers);
    std::vector<ReferenceLayerInfo> getReferenceLayerInfo(std::string const & job,
                                                          std::string const & step) const;
    void resetReferenceLayerInfo(std::string const & job);
    void renameReferenceJob(std::string const & job, std::string const & oldJob, std::string const & newJob);
    void renameReferenceStep(std::string const & job, std::string const & refJob, std::string const & oldStep,
                             std::string const & newStep);
    void renameReferenceLayer(std::string const & job, std::string const & refJob,
                              std::string const & refStep, std::string const & oldLayer,
                              std::string const & newLayer);
    void deleteReferenceJob(std::string const & job, std::string const & step, std::string const & refJob);
    void deleteReferenceStep(std::string const & job, std::string const & step, std::string const & refJob,
                             std::string const & refStep);
    void deleteReferenceLayer(std::string const & job, std::string const & step, std::string const & refJob,
                              std::string const & refStep, std::string const & refLayer);
    void renameCompareJob(std::string const & oldJob, std::string const & newJob);
    void renameCompareStep(std::string const & job, std::string const & oldStep, std::string const & newStep);
    void deleteCompareStep(std::string const & job, std::string const & step);
    std::vector<std::pair<std::string, int>> getDrawingLayer(std::string const & job,
                                                             std::string const & step) const;
    void setDrawingLayer(std::string const & job, std::string const & step,
                         std::vector<std::pair<std::string, int>> const & layers);
    void resetDrawingLayer(std::string const & job);
    ///@}
    ///@{
    /// The text of the latest setJobJsonPara(); initially empty. One text for all jobs: the name is not used.
    std::string getJobJsonPara(std::string job) const;
    void setJobJsonPara(std::string const & job, std::string const & text);
    ///@}

    // --- Files of jobs ------------------------------------------------------------------------------------

    ///@{
    /// See the flat function of the same name.
    bool saveTextByIODevice(QString const & path, QString const & text) const;
    bool checkDir(QString const & path) const;
    bool delDir(std::string const & path, bool removeSelf) const;
    bool copyDirectoryFile(QString const & from, QString const & to, bool overwrite) const;
    bool deletGeneJob(std::string const & job) const;
    QString formatTime(qint64 milliseconds) const;
    ///@}

    // --- EDA link and plug-in commands --------------------------------------------------------------------
    // Copies of this object share the one link. Without a link nothing happens.

    /// The port that messages to the EDA tool are sent to; initially 22333.
    void setEdaPort(int port);
    /// Sends an object as compact JSON. Success is not reported.
    void sendEdaData(QJsonObject const & data);
    /// The text of the last datagram received; empty if none.
    QString getReceiveStr() const;
    /// The link, unowned and never destroyed; null if there is none.
    ConnectEDA * edaLink() const;
    /// Status of the link; the type is declared in links/ConnectEDA.h.
    Ext::EdaLinkState edaLinkState() const;
    /// sendEdaData() with a result.
    [[nodiscard]] Ext::EdaSendResult sendEdaDataChecked(QJsonObject const & data);

    /// Hands a command to the modules that have a route for it, see the flat function of this name.
    void setPluginCmd(int command, std::string const & key, void * data) const;
    /// From now on setPluginCmd() also passes this command with this key to a plug-in module. Routes are
    /// added by the host; initially there are none. Not persisted. False if the route already exists.
    bool addPluginRoute(int command, std::string const & key, std::string const & module);
    /// Removes a route, for example when its module is unloaded. False if there is no such route.
    bool removePluginRoute(int command, std::string const & key, std::string const & module);

private:
    friend struct CommonParaAccess;

    UIAPICommonPara();
    ~UIAPICommonPara();

    struct Private;
    Private * d; // owned
};

} // namespace KVCAM::UIAPI
