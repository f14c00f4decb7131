#include "widgets/KVFileDialog.h"

#include "support/Boxes.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QListView>
#include <QPointer>
#include <QPushButton>
#include <QTreeView>

KVFileDialog::KVFileDialog(QWidget * parent) : QFileDialog(parent, QString(), QString(), QString())
{
    auto * const selectAll = new QPushButton(tr("Select All"), this);
    // Qt may look for a child of this name to connect the slot to when it builds its widgets below.
    selectAll->setObjectName(QStringLiteral("m_ChooseAllPB"));

    // Only Qt's own dialog has child widgets.
    setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontUseCustomDirectoryIcons);

    auto * list = findChild<QListView *>(QStringLiteral("ListView"));
    if (list == nullptr) {
        list = findChild<QListView *>(QStringLiteral("listView")); // the name in Qt 5
    }
    if (list != nullptr) {
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    }
    if (auto * tree = findChild<QTreeView *>()) {
        tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    }

    auto * const box = findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    if (box != nullptr) {
        box->addButton(selectAll, QDialogButtonBox::ActionRole);
        box->setLayoutDirection(Qt::LeftToRight);
        box->setOrientation(Qt::Horizontal);
        if (auto * grid = findChild<QGridLayout *>()) {
            grid->addWidget(box, 4, 1);
        }
        disconnect(box, SIGNAL(accepted()), this, SLOT(accept()));
        connect(box, SIGNAL(accepted()), this, SLOT(onChoice()));
    }
    connect(selectAll, SIGNAL(clicked()), this, SLOT(on_m_ChooseAllPB_clicked()), Qt::UniqueConnection);
}

KVFileDialog::~KVFileDialog() = default;

bool KVFileDialog::asksBeforeReplacing() const
{
    return m_asksBeforeReplacing;
}

void KVFileDialog::setAsksBeforeReplacing(bool asks)
{
    m_asksBeforeReplacing = asks;
}

// Also false if the dialog was deleted during the question.
bool KVFileDialog::mayReplace()
{
    if (!m_asksBeforeReplacing || acceptMode() != AcceptSave) {
        return true;
    }
    constexpr int mostNames = 10; // more might not fit on the screen
    QStringList names;
    QStringList const paths = selectedFiles();
    for (QString const & path : paths) {
        QFileInfo const file(path);
        if (file.exists() && !file.isDir()) {
            names += names.size() < mostNames ? file.fileName() : QStringLiteral("...");
        }
        if (names.size() > mostNames) {
            break;
        }
    }
    QPointer<KVFileDialog> const alive(this);
    return names.isEmpty() ||
           (KVCAM::UIAPI::askQuestion(this, tr("Replace what is there already?") + QLatin1Char('\n') +
                                                names.join(QLatin1Char('\n'))) &&
            alive);
}

void KVFileDialog::accept()
{
    if (!m_asksBeforeReplacing) {
        QFileDialog::accept();
        return;
    }
    if (!mayReplace()) {
        return;
    }
    QPointer<KVFileDialog> const alive(this);
    bool const wasUnconfirmed = testOption(DontConfirmOverwrite);
    setOption(DontConfirmOverwrite); // avoids a second question
    QFileDialog::accept();
    if (alive) {
        setOption(DontConfirmOverwrite, wasUnconfirmed);
    }
}

void KVFileDialog::onChoice()
{
    if (mayReplace()) {
        // QFileDialog::accept() would enter a selected folder.
        QDialog::accept(); // NOLINT(bugprone-parent-virtual-call)
    }
}

void KVFileDialog::on_m_ChooseAllPB_clicked()
{
    QPointer<KVFileDialog> const alive(this);
    if (auto * tree = findChild<QTreeView *>()) {
        tree->selectAll();
    }
    if (alive) {
        onChoice();
    }
}
