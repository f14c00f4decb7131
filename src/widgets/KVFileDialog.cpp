#include "widgets/KVFileDialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QListView>
#include <QPushButton>
#include <QTreeView>

KVFileDialog::KVFileDialog(QWidget * parent) : QFileDialog(parent, QString(), QString(), QString())
{
    auto * const selectAll = new QPushButton(tr("Select All"), this);
    // Qt may look for a child of this name to connect the slot to when it builds its widgets below.
    selectAll->setObjectName(QStringLiteral("m_ChooseAllPB"));

    // Only Qt's own dialog has child widgets to be found.
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

void KVFileDialog::onChoice()
{
    // QFileDialog::accept() would enter a selected folder.
    QDialog::accept(); // NOLINT(bugprone-parent-virtual-call)
}

void KVFileDialog::on_m_ChooseAllPB_clicked()
{
    if (auto * tree = findChild<QTreeView *>()) {
        tree->selectAll();
    }
    onChoice();
}
