#include "SampleWindow.h"
#include "layers/ReferenceBook.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>

#include <functional>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

using ReferencesInAWindow = SampleWindow;

// "a/s: b/t[x, y], c/t[z]" for each step with references in the book.
QStringList dump(ReferenceBook const & book)
{
    QStringList lines;
    for (auto const & [job, steps] : book.owners()) {
        for (std::string const & step : steps) {
            QStringList records;
            for (ReferenceLayerInfo const & record : book.records(job, step)) {
                QStringList layers;
                for (std::string const & layer : record.layers) {
                    layers.append(QString::fromStdString(layer));
                }
                records.append(QString::fromStdString(record.job + '/' + record.step) + '[' +
                               layers.join(", ") + ']');
            }
            lines.append(QString::fromStdString(job + '/' + step) + ": " + records.join(", "));
        }
    }
    return lines;
}

TEST(References, FollowWhatTheHostRenamesAndDeletesWhereverTheNameStands)
{
    struct
    {
        char const * what;
        std::function<QStringList(ReferenceBook &)> act;
        int calls;
        QStringList after;
    } const steps[] = {
        {"a job",
         [](auto & book) { return book.renameJob("a", "c"); },
         3,
         {"b/t: c/s[y]", "c/s: c/s[x, y], b/t[x]", "c/u: "}},
        {"a step",
         [](auto & book) { return book.renameStep("c", "s", "v"); },
         3,
         {"b/t: c/v[y]", "c/u: ", "c/v: c/v[x, y], b/t[x]"}},
        {"a layer",
         [](auto & book) { return book.renameLayer("c", "v", "y", "z"); },
         2,
         {"b/t: c/v[z]", "c/u: ", "c/v: c/v[x, z], b/t[x]"}},
        {"a job onto one that is there",
         [](auto & book) { return book.renameStep("c", "v", "u"); },
         3,
         {"b/t: c/u[z]", "c/u: c/u[x, z], b/t[x]"}},
        {"nothing",
         [](auto & book) { return book.renameJob("nowhere", "d"); },
         3,
         {"b/t: c/u[z]", "c/u: c/u[x, z], b/t[x]"}},
        {"the only layer of a record",
         [](auto & book) { return book.deleteLayer("c", "u", "z"); },
         2,
         {"b/t: ", "c/u: c/u[x], b/t[x]"}},
        {"a step that is referred to",
         [](auto & book) { return book.deleteStep("b", "t"); },
         3,
         {"c/u: c/u[x]"}},
        {"a job", [](auto & book) { return book.deleteJob("c"); }, 2, {}},
    };
    ReferenceBook book;
    book.setRecords("a", "s", {{"a", "s", {"x", "y"}}, {"b", "t", {"x"}}});
    book.setRecords("a", "u", {});
    book.setRecords("b", "t", {{"a", "s", {"y"}}});
    for (auto const & step : steps) {
        EXPECT_EQ(step.act(book).size(), step.calls) << step.what;
        EXPECT_EQ(dump(book), step.after) << step.what << '\n' << dump(book).join('\n').toStdString();
    }
}

TEST_F(ReferencesInAWindow, ThePageOfReferencesShowsAndChangesWhatTheLibraryKeeps)
{
    open();
    window->showPage("references");
    auto & records = find<QTableWidget>("references");
    auto & layers = find<QListWidget>("reference layers");
    auto & tree = find<QTreeWidget>("kept references");
    auto const layersOf = [](char const * step) {
        auto const kept = getReferenceLayerInfo("demo-board", step);
        return kept.empty() ? std::vector<std::string>() : kept.back().layers;
    };
    auto const click = [this](char const * name) { find<QPushButton>(name).click(); };
    QString const empty = "This step has no reference layers. Tick some and add them.";
    EXPECT_EQ(find<QLabel>("reference hint").text(), empty);
    click("add");
    EXPECT_EQ(find<QLabel>("reference hint").text(),
              "A reference needs a job, a step and at least one layer.");
    for (int const row : {4, 14}) {
        layers.item(row)->setCheckState(Qt::Checked);
    }
    click("add");
    EXPECT_EQ(layersOf("pcb"), (std::vector<std::string>{"top", "bottom"}));
    layers.item(0)->setCheckState(Qt::Unchecked); // the chosen ones come first
    find<QComboBox>("reference job").setEditText("other board");
    click("change");
    EXPECT_EQ(layersOf("pcb"), std::vector<std::string>{"bottom"});
    EXPECT_EQ(records.item(0, 0)->text(), "other board");

    auto const choose = [&tree](QString const & text) {
        auto const items = tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
        tree.setCurrentItem(items.isEmpty() ? nullptr : items.front());
    };
    auto const rename = [&](QString const & text, QString const & newName) {
        choose(text);
        find<QLineEdit>("new name").setText(newName);
        click("rename");
        return find<QLabel>("told the library").text();
    };
    EXPECT_EQ(rename("bottom", ""), "A name is needed.");
    EXPECT_EQ(rename("bottom", "l6"),
              "renameReferenceLayer(\"demo-board\", \"other board\", \"pcb\", \"bottom\", \"l6\")");
    EXPECT_EQ(records.item(0, 2)->text(), "l6");
    EXPECT_EQ(layers.item(0)->text(), "l6"); // offered although the open job has none
    answer = [] { return Ext::MessageAnswer::No; };
    choose("other board");
    click("delete");
    EXPECT_EQ(layersOf("pcb"), std::vector<std::string>{"l6"});
    answer = [] { return Ext::MessageAnswer::Yes; };
    click("delete");
    EXPECT_TRUE(layersOf("pcb").empty());
    EXPECT_EQ(find<QLabel>("reference hint").text(), empty);
    QString const question =
        "Tell the library that \"other board\" is deleted? All references to it go as well.";
    EXPECT_EQ(takeBoxes(), (QStringList{question, question}));

    for (int i = 0; i < 2; ++i) { // two records with their jobs side by side
        layers.item(0)->setCheckState(Qt::Checked);
        find<QComboBox>("reference job").setEditText(QString("job %1").arg(i));
        click("add");
    }
    EXPECT_EQ(rename("job 0", "job 1"), "This name is taken.");
    records.selectRow(0);
    click("remove");
    EXPECT_EQ(records.rowCount(), 1);
    EXPECT_EQ(records.item(0, 0)->text(), "job 1");
    EXPECT_TRUE(getReferenceLayerInfo("demo-board", "panel").empty());
}

} // namespace
