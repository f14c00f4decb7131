#include "window/StartPage.h"

#include "job/ConfigDirectory.h"
#include "ui/BoardDrop.h"
#include "ui/FileDialogs.h"
#include "ui/LanguageChange.h"

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace Workbench {

StartPage::StartPage(QStringList const & recent)
{
    resize(640, 480);
    auto const want = [this](QString const & path) { emit boardWanted(path); };
    auto * layout = new QVBoxLayout(this);
    auto * hint = new QLabel;
    hint->setWordWrap(true);
    auto * open = new QPushButton;
    auto * sample = new QPushButton;
    auto * title = new QLabel;
    auto * boards = new QListWidget;
    boards->setObjectName("recent");
    for (QString const & path : recent) {
        auto * item = new QListWidgetItem(QDir::toNativeSeparators(path), boards);
        item->setData(Qt::UserRole, path);
    }
    for (QWidget * part :
         {static_cast<QWidget *>(hint), static_cast<QWidget *>(open), static_cast<QWidget *>(sample),
          static_cast<QWidget *>(title), static_cast<QWidget *>(boards)}) {
        layout->addWidget(part);
    }
    title->setVisible(!recent.isEmpty());
    boards->setVisible(!recent.isEmpty());
    if (recent.isEmpty()) {
        layout->addStretch();
    }
    connect(open, &QPushButton::clicked, this,
            [this, want, beside = recent.value(0, "./")] { askForBoard(*this, beside, want); });
    connect(sample, &QPushButton::clicked, this, [want] { want(samplesDirectory() + "/jobs/demo-board"); });
    connect(boards, &QListWidget::itemActivated, this,
            [want](QListWidgetItem const * item) { want(item->data(Qt::UserRole).toString()); });
    new BoardDrop(*this, want);
    setTextsNowAndLater(*this, [this, hint, open, sample, title] {
        setWindowTitle(tr("UIAPICommon workbench"));
        hint->setText(tr("Open the job of a board, or drop its folder or archive onto this window."));
        open->setText(tr("&Open a board..."));
        sample->setText(tr("Open the &sample board"));
        title->setText(tr("Opened lately:"));
    });
}

} // namespace Workbench
