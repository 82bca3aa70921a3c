#include "profile/ui/DialogProfile.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "profile/Profile.h"
#include "profile/ui/DialogFormulas.h"
#include "profile/ui/ProfileFilterModel.h"
#include "profile/ui/ProfileTreeModel.h"
#include "project/Project.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kLeastName = 11; // in sizes of the font

} // namespace

DialogProfile::DialogProfile(const Session& session, QWidget* pHead, QWidget* pParent)
    : QWidget(pParent), mSession(session), mpModel(new ProfileTreeModel(session.profile, this)),
      mpFilter(new ProfileFilterModel(*mpModel, this)), mpSearch(new QLineEdit), mpOnlyRecorded(new QCheckBox(tr("Only recorded"))),
      mpTree(new QTreeView), mpCount(new QLabel)
{
    mpSearch->setObjectName("search");
    mpSearch->setPlaceholderText(tr("Search name, unit or identifier"));
    mpSearch->setAccessibleName(tr("Search parameters"));
    mpSearch->setClearButtonEnabled(true);
    mpOnlyRecorded->setObjectName("onlyRecorded");
    mpOnlyRecorded->setToolTip(tr("List only what the loaded data hold samples of"));
    mpOnlyRecorded->setChecked(Settings::kParameterOnlyRecorded.get(session.property));
    mpCount->setObjectName("count");
    mpCount->setWordWrap(true);
    createTree();
    createActions();

    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    if (pHead)
        pLayout->addWidget(pHead);
    pLayout->addWidget(mpSearch);
    pLayout->addWidget(mpOnlyRecorded);
    pLayout->addWidget(mpTree);
    auto* pFormulas = new QToolButton;
    pFormulas->setObjectName("editFormulas");
    pFormulas->setText(tr("Formulas ..."));
    pFormulas->setToolTip(tr("Parameters of your own, computed from others"));
    pFormulas->setFocusPolicy(Qt::StrongFocus);
    connect(pFormulas, &QToolButton::clicked, this, &DialogProfile::slotFormulas);
    auto* pBelow = new QHBoxLayout;
    pBelow->addWidget(mpCount, 1);
    pBelow->addWidget(pFormulas);
    pLayout->addLayout(pBelow);

    connect(mpSearch, &QLineEdit::textChanged, this, &DialogProfile::slotFilter);
    connect(mpOnlyRecorded, &QCheckBox::toggled, this, &DialogProfile::slotOnlyRecorded);
    connect(mpModel, &ProfileTreeModel::signalChanged, this, &DialogProfile::slotSelectionChanged);
    connect(mpModel, &ProfileTreeModel::signalCounted, this, &DialogProfile::slotCount);
    mpFilter->setOnlyRecorded(mpOnlyRecorded->isChecked());
    slotCount();
    slotFilter({});
    slotCurrentChanged();
}

void DialogProfile::createTree()
{
    mpTree->setObjectName("treeProfile");
    mpTree->setAccessibleName(tr("Parameters of the profile"));
    mpTree->setModel(mpFilter);
    mpTree->setUniformRowHeights(true);
    mpTree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    mpTree->setContextMenuPolicy(Qt::ActionsContextMenu);
    mpTree->header()->setStretchLastSection(false);
    mpTree->header()->setSectionResizeMode(ProfileTreeModel::eName, QHeaderView::Fixed);
    mpTree->header()->setSectionResizeMode(ProfileTreeModel::eUnit, QHeaderView::ResizeToContents);
    mpTree->header()->setSectionResizeMode(ProfileTreeModel::eIdentifier, QHeaderView::ResizeToContents);
    mpTree->viewport()->installEventFilter(this);
    connect(mpTree->header(), &QHeaderView::sectionResized, this, [this](int section) {
        if (section != ProfileTreeModel::eName)
            fitNames();
    });
    connect(mpTree, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        if (!ProfileTreeModel::isDevice(index))
            Q_EMIT signalShow(index.siblingAtColumn(ProfileTreeModel::eName).data().toString());
    });
    connect(mpTree->selectionModel(), &QItemSelectionModel::currentChanged, this, &DialogProfile::slotCurrentChanged);
    connect(mpFilter, &QAbstractItemModel::modelReset, this, &DialogProfile::slotCurrentChanged);
}

bool DialogProfile::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Resize)
        fitNames();
    return QWidget::eventFilter(pObject, pEvent);
}

/// The names take what the other columns leave them, but with large letters in a narrow panel these are scrolled to.
void DialogProfile::fitNames()
{
    QHeaderView& header = *mpTree->header();
    const int left = mpTree->viewport()->width() - header.sectionSize(ProfileTreeModel::eUnit) - header.sectionSize(ProfileTreeModel::eIdentifier);
    header.resizeSection(ProfileTreeModel::eName, std::max(left, kLeastName * QFontInfo(mpTree->font()).pixelSize()));
}

void DialogProfile::createActions()
{
    mpSelectAll = addAction("selectAll", {});
    mpSelectNone = addAction("selectNone", {});
    mpOnlyDevice = addAction("onlyDevice", tr("Select Only This Device"));
    mpCopyName = addAction("copyName", tr("Copy Name"));
    connect(mpSelectAll, &QAction::triggered, this, [this] { mpFilter->selectShown(true); });
    connect(mpSelectNone, &QAction::triggered, this, [this] { mpFilter->selectShown(false); });
    connect(mpOnlyDevice, &QAction::triggered, this, &DialogProfile::slotOnlyDevice);
    connect(mpCopyName, &QAction::triggered, this, &DialogProfile::slotCopyName);
    connect(addAction("formulas", tr("Formulas ...")), &QAction::triggered, this, &DialogProfile::slotFormulas);
}

QAction* DialogProfile::addAction(const QString& name, const QString& text)
{
    auto* pAction = new QAction(text, this);
    pAction->setObjectName(name);
    mpTree->addAction(pAction);
    return pAction;
}

void DialogProfile::slotFormulas()
{
    Profile& profile = mSession.profile;
    DialogFormulas dialog(profile.formulas(), profile.loadedModel(), mExamples, this);
    if (dialog.exec() != QDialog::Accepted || dialog.formulas() == profile.formulas())
        return;
    for (const FormulaDefinition& formula : dialog.formulas()) { // a new one is meant to be seen
        if (!profile.model().find(formula.name))
            profile.setSelected(formula.name, true);
    }
    profile.setFormulas(dialog.formulas());
    updateProfile();
    Q_EMIT signalFormulasChanged();
}

void DialogProfile::updateProfile()
{
    rememberExpanded();
    mpModel->rebuild();
    restoreExpanded();
}

void DialogProfile::updateProject()
{
    mSession.project.setProfileData();
    updateProfile();
}

void DialogProfile::rememberExpanded()
{
    if (!mpFilter->filterRegularExpression().pattern().isEmpty())
        return;
    for (int row = 0; row < mpFilter->rowCount(); ++row) {
        const QModelIndex device = mpFilter->index(row, 0);
        if (mpTree->isExpanded(device))
            mExpanded.insert(device.data().toString());
        else
            mExpanded.remove(device.data().toString());
    }
}

void DialogProfile::restoreExpanded()
{
    const bool searching = !mpSearch->text().isEmpty();
    for (int row = 0; row < mpFilter->rowCount(); ++row) {
        const QModelIndex device = mpFilter->index(row, 0);
        mpTree->setExpanded(device, searching || mExpanded.contains(device.data().toString()));
        mpTree->setFirstColumnSpanned(row, {}, true); // a device has a name only
    }
}

void DialogProfile::slotFilter(const QString& text)
{
    rememberExpanded();
    mpFilter->setFilterFixedString(text);
    restoreExpanded();
    nameActions();
}

/// What the two do is said where it is chosen: they leave alone what is hidden.
void DialogProfile::nameActions()
{
    const bool isAll = mpSearch->text().isEmpty() && !mpFilter->isNarrowed();
    mpSelectAll->setText(isAll ? tr("Select All") : tr("Select All Shown"));
    mpSelectNone->setText(isAll ? tr("Select None") : tr("Select None Shown"));
}

void DialogProfile::setRecorded(std::optional<std::set<uint32_t>> identifiers)
{
    rememberExpanded();
    mpFilter->setRecorded(std::move(identifiers));
    restoreExpanded();
    nameActions();
    slotCount();
}

void DialogProfile::slotOnlyRecorded(bool on)
{
    rememberExpanded();
    mpFilter->setOnlyRecorded(on);
    restoreExpanded();
    nameActions();
    slotCount();
    Settings::kParameterOnlyRecorded.set(mSession.property, on);
    mSession.property.writeXmlFile();
}

void DialogProfile::slotSelectionChanged()
{
    mSession.project.takeProfileData();
    Q_EMIT signalChanged();
}

void DialogProfile::slotCount()
{
    const QString text = tr("%1 of %2 parameters selected").arg(mpModel->selectedCount()).arg(mpModel->parameterCount());
    const int hidden = mpFilter->selectedUnrecorded();
    mpCount->setText(hidden == 0 ? text : tr("%1, %2 of them not recorded").arg(text).arg(hidden));
}

void DialogProfile::slotCurrentChanged()
{
    const bool hasCurrent = mpTree->currentIndex().isValid();
    mpOnlyDevice->setEnabled(hasCurrent);
    mpCopyName->setEnabled(hasCurrent);
}

void DialogProfile::slotOnlyDevice()
{
    mpModel->selectOnly(mpFilter->mapToSource(mpTree->currentIndex()));
}

void DialogProfile::slotCopyName()
{
    QGuiApplication::clipboard()->setText(mpTree->currentIndex().siblingAtColumn(ProfileTreeModel::eName).data().toString());
}

} // namespace ZARN
