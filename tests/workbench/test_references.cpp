#include "layers/ReferenceBook.h"

#include <gtest/gtest.h>

#include <functional>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

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

} // namespace
