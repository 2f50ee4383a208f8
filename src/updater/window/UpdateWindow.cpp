#include "updater/window/UpdateWindow.h"

#include "app/modLanguage.h"
#include "updater/window/Downloads.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int widthPixels = 460;
constexpr int textHeight = 64;
constexpr int fullProgress = 1000;
constexpr int waitPauseMs = 200;
constexpr int mostKeptNamed = 12;

#ifdef Q_OS_WIN
// A setup checks and replaces by itself; it needs this program to have ended.
bool startSetup(const QString& file, const QString& folder) {
    QProcess setup;
    setup.setProgram(file);
    setup.setNativeArguments(u"/D="_s + QDir::toNativeSeparators(folder.chopped(1)));
    return setup.startDetached();
}
#endif

bool isSetup(const QString& file) {
    return file.endsWith(u".exe"_s, Qt::CaseInsensitive);
}

QString namesOf(const QStringList& names) {
    const QString more =
        names.size() > mostKeptNamed ? u"\n... (+ %1)"_s.arg(names.size() - mostKeptNamed) : QString();
    return names.first(std::min<qsizetype>(names.size(), mostKeptNamed)).join(u'\n') + more;
}

} // namespace

bool startOrvinel(const QString& folder) {
    return QProcess::startDetached(folder + programFileName(), {}, folder);
}

QString textOfFault(const World& state, const Package& package, const QString& file) {
    const QString name = QFileInfo(file).fileName();
    switch (package.fault) {
    case PackageFault::None:
        return {};
    case PackageFault::Unreadable:
        return state.text(Caption::PackageUnreadable).arg(name, package.about);
    case PackageFault::NotOrvinel:
        return state.text(Caption::PackageForeign).arg(name);
    case PackageFault::Damaged:
        return state.text(Caption::PackageDamaged).arg(name, package.about);
    case PackageFault::OtherSystem:
        return state.text(Caption::PackageOtherSystem).arg(name);
    }
    return {};
}

UpdateWindow::UpdateWindow(const World& state, Disk& disk, Desktop& desktop)
    : QDialog(nullptr, Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowMinimizeButtonHint |
                           Qt::WindowCloseButtonHint | Qt::Window),
      state_(state), disk_(disk), desktop_(desktop) {
    setWindowTitle(state_.text(Caption::UpdateTitle));
    makeWidgets();
    layOut();
    setIdle();
    tell(state_.text(Caption::UpdateAsk));
    timer_.setSingleShot(true);
}

UpdateWindow::~UpdateWindow() = default;

void UpdateWindow::makeWidgets() {
    lblText_ = new QLabel(this);
    lblText_->setTextFormat(Qt::PlainText);
    lblText_->setWordWrap(true);
    lblText_->setAlignment(Qt::AlignTop);
    lblText_->setMinimumHeight(textHeight);
    txtPackage_ = new QLineEdit(this);
    txtPackage_->setAccessibleName(state_.text(Caption::UpdatePackage));
    progress_ = new QProgressBar(this);
    progress_->setRange(0, fullProgress);
    progress_->setAccessibleName(state_.text(Caption::UpdateTitle));
    QSizePolicy place = progress_->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(place);
    const auto button = [this](Caption caption, auto slot) {
        auto* made = new QPushButton(state_.text(caption), this);
        made->setAutoDefault(true);
        connect(made, &QPushButton::clicked, this, slot);
        return made;
    };
    cmdBrowse_ = button(Caption::UpdateBrowse, &UpdateWindow::browse);
    cmdUpdate_ = button(Caption::UpdateBegin, &UpdateWindow::begin);
    cmdStart_ = button(Caption::StartOrvinel, &UpdateWindow::startProgram);
    cmdQuit_ = button(Caption::Quit, &UpdateWindow::close);
    cmdUpdate_->setDefault(true);
    connect(txtPackage_, &QLineEdit::textChanged, this,
            [this](const QString& text) { cmdUpdate_->setEnabled(!text.trimmed().isEmpty()); });
}

void UpdateWindow::layOut() {
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(lblText_, 1);
    auto* choice = new QHBoxLayout;
    choice->addWidget(txtPackage_, 1);
    choice->addWidget(cmdBrowse_);
    rows->addLayout(choice);
    rows->addWidget(progress_);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdStart_);
    buttons->addStretch(1);
    buttons->addWidget(cmdUpdate_);
    buttons->addWidget(cmdQuit_);
    rows->addLayout(buttons);
    setFixedWidth(widthPixels);
}

void UpdateWindow::offer(const QString& package) {
    txtPackage_->setText(QDir::toNativeSeparators(package));
    (package.isEmpty() ? cmdBrowse_ : cmdUpdate_)->setFocus();
}

void UpdateWindow::tell(const QString& text) {
    lblText_->setText(text);
}

void UpdateWindow::setBusy(const QString& text, void (UpdateWindow::*next)(), int pauseMs) {
    tell(text);
    for (QWidget* widget : std::initializer_list<QWidget*>{txtPackage_, cmdBrowse_, cmdUpdate_, cmdStart_})
        widget->setEnabled(false);
    progress_->show();
    cmdQuit_->setText(state_.text(Caption::UpdateCancel));
    timer_.disconnect();
    connect(&timer_, &QTimer::timeout, this, next);
    timer_.start(pauseMs);
}

void UpdateWindow::setIdle() {
    reader_.reset();
    package_.reset();
    replacement_.reset();
    instance_.reset();
    progress_->setValue(0);
    progress_->hide();
    for (QWidget* widget : std::initializer_list<QWidget*>{txtPackage_, cmdBrowse_, cmdStart_})
        widget->setEnabled(true);
    cmdUpdate_->setEnabled(!txtPackage_->text().trimmed().isEmpty());
    cmdQuit_->setText(state_.text(Caption::Quit));
}

void UpdateWindow::fail(const QString& text) {
    setIdle();
    tell(text);
    desktop_.message(MessageIcon::Critical, windowTitle(), text);
}

void UpdateWindow::browse() {
    const QFileInfo now(txtPackage_->text());
    const QString start = now.exists() ? now.absoluteFilePath()
                                       : QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
#ifdef Q_OS_WIN
    const QString kinds = u"*.zip *.exe"_s;
#else
    const QString kinds = u"*.zip *.tar.gz *.tar.xz *.tgz *.txz"_s;
#endif
    const QString filter = u"%1 (%2)"_s.arg(state_.text(Caption::UpdatePackage), kinds);
    const QString chosen = QFileDialog::getOpenFileName(this, windowTitle(), start, filter);
    if (!chosen.isEmpty())
        offer(chosen);
}

bool UpdateWindow::mayBegin(const QString& path) {
    if (!disk_.mayWrite(state_.AppPath))
        fail(state_.text(Caption::ReadOnlyFolder).arg(state_.AppPath));
    else if (!isSetup(path))
        return true;
#ifdef Q_OS_WIN
    else if (startSetup(path, state_.AppPath))
        close();
    else
        fail(state_.text(Caption::NotOpened).arg(path));
#else
    else
        fail(state_.text(Caption::PackageOtherSystem).arg(QFileInfo(path).fileName()));
#endif
    return false;
}

void UpdateWindow::begin() {
    if (!cmdUpdate_->isEnabled())
        return;
    file_ = QDir::fromNativeSeparators(txtPackage_->text().trimmed());
    if (!mayBegin(file_))
        return;
    reader_ = std::make_unique<PackageReader>(file_);
    setBusy(state_.text(Caption::UpdateChecking), &UpdateWindow::checkMore);
}

void UpdateWindow::checkMore() {
    const bool more = reader_->readNext();
    progress_->setValue(static_cast<int>(reader_->progress() * fullProgress));
    if (more)
        timer_.start(0);
    else
        judge(reader_->package());
}

void UpdateWindow::judge(Package package) {
    if (!package.whole())
        return fail(textOfFault(state_, package, file_));
    if (!olderIsWanted(package)) {
        setIdle();
        return tell(state_.text(Caption::UpdateAsk));
    }
    package_ = std::move(package);
    setBusy(state_.text(Caption::UpdateWaiting), &UpdateWindow::waitForProgram);
}

bool UpdateWindow::olderIsWanted(const Package& package) {
    const QString present = readVersion(disk_.read(state_.AppPath + installedVersionPath).bytes);
    return !isOlder(package.version, present) ||
           desktop_.ask(MessageIcon::Question, windowTitle(),
                        state_.text(Caption::PackageOlder).arg(package.version, present));
}

void UpdateWindow::waitForProgram() {
    instance_ = std::make_unique<SingleInstance>(state_.AppPath);
    if (instance_->first())
        return replace();
    instance_.reset();
    timer_.start(waitPauseMs);
}

void UpdateWindow::replace() {
    UpdatePlan plan = planUpdate(disk_, state_.AppPath, package_->sums);
    if (!plan.inTheWay.isEmpty())
        return fail(state_.text(Caption::UpdateInTheWay).arg(plan.inTheWay));
    kept_ = plan.kept;
    replacement_ = std::make_unique<Replacement>(disk_, state_.AppPath, *package_, std::move(plan));
    setBusy(state_.text(Caption::UpdateReplacing).arg(package_->version), &UpdateWindow::replaceMore);
}

void UpdateWindow::replaceMore() {
    const bool more = replacement_->step();
    progress_->setValue(replacement_->stepsDone() * fullProgress / replacement_->steps());
    if (more)
        return timer_.start(0);
    if (replacement_->leftHalf())
        fail(state_.text(Caption::UpdateNotTakenBack).arg(*replacement_->leftHalf()));
    else if (replacement_->failure())
        fail(state_.text(Caption::UpdateTakenBack).arg(*replacement_->failure()));
    else
        finish();
}

void UpdateWindow::finish() {
    const QString done = state_.text(Caption::UpdateDone).arg(package_->version);
    setIdle();
    if (kept_.isEmpty())
        return startProgram();
    txtPackage_->hide();
    cmdBrowse_->hide();
    cmdUpdate_->hide();
    tell(done + u"\n\n"_s + state_.text(Caption::UpdateKept) + u'\n' + namesOf(kept_));
    cmdStart_->setFocus();
}

void UpdateWindow::startProgram() {
    instance_.reset();
    if (startOrvinel(state_.AppPath))
        close();
    else
        desktop_.message(MessageIcon::Critical, windowTitle(),
                         state_.text(Caption::NotOpened).arg(state_.AppPath + programFileName()));
}

void UpdateWindow::closeEvent(QCloseEvent* event) {
    timer_.stop();
    if (replacement_ && !replacement_->failure())
        replacement_->takeBack(windowTitle());
    event->accept(); // the dialog's own handler would come here again
}

} // namespace orvinel
