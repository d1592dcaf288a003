#include "app/window/SentWindow.h"

#include "app/window/SentModel.h"
#include "app/window/SentTable.h"
#include "app/window/SingleClick.h"
#include "app/window/WindowPlace.h"
#include "keyer/MessageSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"
#include "record/RecordSettings.h"
#include "record/RecordStore.h"
#include "record/RunText.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QSize usualSize(860, 480);
/// After a letter the next one is waited for.
constexpr auto searchPause = 150ms;
/// More rows than anybody copies by intention.
constexpr qsizetype mostCopied = 10'000;

SettingsStore& settings() {
    return SettingsStore::standardUserDefaults();
}

QString plainLabel(QString label) {
    return label.replace(u"&"_s, u"&&"_s);
}

} // namespace

SentWindow::SentWindow(WinKeyerUsb& engine, RecordStore& store, QWidget* parent)
    : QDialog(parent), _engine(engine), _store(store), _model(new SentModel(store, this)) {
    setWindowTitle(tr("Sent"));
    auto* layout = new QVBoxLayout(this);
    addSearch(*layout);
    addTable(*layout);
    addSettings(*layout);
    addButtons(*layout);
    addKeys();
    resize(usualSize.boundedTo(screen()->availableSize()));
    new WindowPlace(*this, u"SentWindowPlace"_s, this);
    QObject::connect(&settings(), &SettingsStore::changed, this, &SentWindow::followSetting);
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this, &SentWindow::followSelection);
    followSelection();
    showMessages();
    showCount();
    _table->setFocus();
}

void SentWindow::addSearch(QVBoxLayout& layout) {
    auto* row = new QHBoxLayout;
    auto* label = new QLabel(tr("&Find:"));
    _search = new QLineEdit;
    _search->setObjectName(u"sentSearchField"_s);
    _search->setAccessibleName(tr("Find"));
    _search->setPlaceholderText(tr("Words, a call sign, a key, a logger or a date"));
    _search->setClearButtonEnabled(true);
    label->setBuddy(_search);
    _count = new QLabel;
    _count->setObjectName(u"sentCountLabel"_s);
    row->addWidget(label);
    row->addWidget(_search, 1);
    row->addWidget(_count);
    layout.addLayout(row);
    _searchSoon.setSingleShot(true);
    QObject::connect(&_searchSoon, &QTimer::timeout, this,
                     [this] { _model->setWords(_search->text().simplified()); });
    QObject::connect(_search, &QLineEdit::textChanged, this,
                     [this] { _searchSoon.start(searchPause); });
    QObject::connect(_model, &SentModel::counted, this, &SentWindow::showCount);
}

void SentWindow::addTable(QVBoxLayout& layout) {
    auto* table = new SentTable;
    _table = table;
    _table->setObjectName(u"sentTable"_s);
    _table->setAccessibleName(tr("Sent"));
    _table->setModel(_model);
    auto& header = *_table->horizontalHeader();
    header.setSectionResizeMode(RunText::Text, QHeaderView::Stretch);
    const auto reserve = [&](RunText::Column column, const QString& text) {
        constexpr int margins = 24;
        const auto width = std::max(fontMetrics().horizontalAdvance(text),
                                    fontMetrics().horizontalAdvance(RunText::heading(column)));
        header.resizeSection(column, width + margins);
    };
    RecordedRun longest;
    longest.text = QString(100, u'E');
    longest.wordsPerMinute = 99;
    longest.source = {TextSource::Kind::Message, 8};
    longest.name = shownText(messageSettings[2].labelDefault);
    longest.ending = RecordedRun::Ending::BrokenIn;
    for (const auto column : {RunText::Begun, RunText::Speed, RunText::Sender, RunText::Ending}) {
        reserve(column, RunText::of(longest, column));
    }
    layout.addWidget(_table, 1);
    QObject::connect(_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                     &SentWindow::followSelection);
    QObject::connect(_model, &QAbstractItemModel::modelReset, this, &SentWindow::followSelection);
    QObject::connect(_model, &QAbstractItemModel::dataChanged, this, &SentWindow::followSelection);
    QObject::connect(table, &SentTable::typed, _search, [this](const QString& text) {
        _search->setFocus();
        _search->setText(_search->text() + text);
    });
}

void SentWindow::addSettings(QVBoxLayout& layout) {
    auto* row = new QHBoxLayout;
    _keep = new QCheckBox(tr("&Keep a record of what is sent, for"));
    _keep->setObjectName(u"keepRecordButton"_s);
    _age = new QComboBox;
    _age->setObjectName(u"recordAgePopUp"_s);
    _age->setAccessibleName(tr("How long what is sent is kept"));
    for (const auto& choice : RecordAge.choices) {
        _age->addItem(shownText(choice.text), QString(choice.text));
    }
    row->addWidget(_keep);
    row->addWidget(_age);
    row->addStretch();
    layout.addLayout(row);
    followSetting(KeepRecord);
    followSetting(RecordAge.key);
    // Assistive programs change them without a click.
    QObject::connect(_keep, &QCheckBox::toggled, this, [](bool isOn) {
        if (isOn != settings().boolForKey(KeepRecord)) {
            settings().setObject(isOn, KeepRecord);
        }
    });
    QObject::connect(_age, &QComboBox::currentIndexChanged, this, [this] {
        if (!_isShowingAge) {
            settings().setObject(_age->currentData(), RecordAge.key);
        }
    });
}

QPushButton* SentWindow::addButton(const QString& text, const QString& name) {
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    // Return in the search field presses none, and typed spaces reach none that was clicked.
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void SentWindow::addButtons(QVBoxLayout& layout) {
    auto* row = new QHBoxLayout;
    // Without a letter, which would press it again for as long as it is held.
    _sendAgain = addButton(tr("Send Again"), u"sendAgainButton"_s);
    new SingleClick(*_sendAgain);
    _makeMessage = addButton(tr("&Make Message"), u"makeMessageButton"_s);
    _copy = addButton(tr("&Copy"), u"copySentButton"_s);
    _save = addButton(tr("&Save as CSV…"), u"saveSentButton"_s);
    auto* close = addButton(tr("C&lose"), u"closeSentButton"_s);
    _makeMessage->setMenu(new QMenu(_makeMessage));
    for (auto* button : {_sendAgain, _makeMessage, _copy, _save}) {
        row->addWidget(button);
    }
    row->addStretch();
    row->addWidget(close);
    layout.addLayout(row);
    QObject::connect(_sendAgain, &QPushButton::clicked, this, &SentWindow::sendAgain);
    QObject::connect(_copy, &QPushButton::clicked, this, &SentWindow::copy);
    QObject::connect(_save, &QPushButton::clicked, this, &SentWindow::chooseFile);
    QObject::connect(close, &QPushButton::clicked, this, &QDialog::reject);
    QObject::connect(_makeMessage->menu(), &QMenu::aboutToShow, this, &SentWindow::showMessages);
}

void SentWindow::addKeys() {
    const auto* find = new QShortcut(QKeySequence::Find, this);
    QObject::connect(find, &QShortcut::activated, _search, [this] {
        _search->setFocus();
        _search->selectAll();
    });
    auto* copy = new QShortcut(QKeySequence::Copy, _table);
    copy->setContext(Qt::WidgetShortcut);
    QObject::connect(copy, &QShortcut::activated, this, &SentWindow::copy);
    const auto* close = new QShortcut(QKeySequence::Close, this);
    QObject::connect(close, &QShortcut::activated, this, &QDialog::reject);
}

void SentWindow::look() {
    _model->look();
}

void SentWindow::followSetting(const QString& key) {
    if (key == KeepRecord) {
        _keep->setChecked(settings().boolForKey(KeepRecord));
        _age->setEnabled(_keep->isChecked());
    } else if (key == RecordAge.key) {
        const QScopedValueRollback guard(_isShowingAge, true);
        const int index = _age->findData(settings().stringForKey(RecordAge.key));
        _age->setCurrentIndex(
            index >= 0
                ? index
                : _age->findData(QString(std::get<QLatin1StringView>(RecordAge.defaultValue))));
    }
}

void SentWindow::showCount() {
    const auto count = _model->rowCount();
    if (count > 0 && !_table->selectionModel()->hasSelection()) {
        _table->selectRow(0); // for the keys to begin at
    }
    const auto number = QLocale().toString(count);
    if (!_model->isSearch()) {
        _count->setText(tr("%1 sent").arg(number));
    } else if (count < SentModel::mostFound) {
        _count->setText(tr("%1 found").arg(number));
    } else {
        _count->setText(tr("The newest %1 found").arg(number));
    }
}

QList<int> SentWindow::selectedRows() const {
    QList<int> rows;
    for (const auto& range : _table->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom() && rows.size() < mostCopied; ++row) {
            rows.append(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

std::optional<RecordedRun> SentWindow::selectedRun() const {
    const auto rows = selectedRows();
    const auto run = rows.size() == 1 ? _model->runAt(rows.first()) : std::nullopt;
    return run && !run->text.isEmpty() ? run : std::nullopt;
}

void SentWindow::followSelection() {
    const bool isOne = selectedRun().has_value();
    const bool isLinked = _engine.activity() != KeyerActivity::NotConnected;
    _sendAgain->setEnabled(isOne && isLinked);
    _sendAgain->setToolTip(isLinked ? tr("Sends the text of the chosen line, as if it were typed")
                                    : tr("No keyer is connected"));
    _makeMessage->setEnabled(isOne);
    _makeMessage->setToolTip(tr("Puts the text of the chosen line under a message key"));
    _copy->setEnabled(_table->selectionModel()->hasSelection());
}

void SentWindow::sendAgain() {
    if (const auto run = selectedRun()) {
        // A space that is typed next presses the button no more.
        _table->setFocus();
        Q_EMIT sendRequested(run->whole().trimmed());
    }
}

void SentWindow::showMessages() {
    auto& menu = *_makeMessage->menu();
    menu.clear();
    for (std::size_t index = 0; index < messageSettings.size(); ++index) {
        const auto label = settings().stringForKey(messageSettings[index].labelKey);
        menu.addAction(tr("F&%1  %2").arg(QString::number(index + 1), plainLabel(label)), this,
                       [this, index] { makeMessage(index); });
    }
}

void SentWindow::makeMessage(std::size_t index) {
    const auto run = selectedRun();
    if (!run) {
        return;
    }
    const auto& message = messageSettings.at(index);
    const auto text = run->whole().trimmed();
    const auto former = settings().stringForKey(message.textKey);
    const Alert question{tr("Replace the text of F%1?").arg(index + 1),
                         tr("It is “%1” now, and will be “%2”.").arg(former, text), tr("Cancel"),
                         tr("Replace")};
    const bool isWanted = former.isEmpty() || Platform::current().application().runModal(
                                                  question) == AlertAnswer::Alternate;
    if (isWanted) {
        settings().setObject(text, message.textKey);
    }
}

void SentWindow::copy() {
    QList<qint64> numbers;
    for (const auto row : selectedRows()) {
        numbers.append(_model->numberAt(row));
    }
    if (numbers.isEmpty()) {
        return;
    }
    _store.read(numbers, this, [](const QList<StoredRun>& runs) {
        QStringList lines;
        for (const auto& each : runs) {
            QStringList values;
            for (int column = 0; column < RunText::Columns; ++column) {
                values.append(RunText::of(each.run, static_cast<RunText::Column>(column)));
            }
            lines.prepend(values.join(u'\t'));
        }
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
    });
}

void SentWindow::chooseFile() {
    auto* dialog = new QFileDialog(this, tr("Save as CSV"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilter(tr("Values separated by commas (*.csv)"));
    dialog->setDefaultSuffix(u"csv"_s);
    dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->selectFile(tr("sent.csv"));
    QObject::connect(dialog, &QFileDialog::fileSelected, this, &SentWindow::save);
    dialog->open();
}

QString SentWindow::savedText(const QString& path, const SavedTable& table) {
    if (!table.problem.isNull()) {
        return tr("Not saved: %1").arg(table.problem);
    }
    return table.missing == 0 ? tr("Saved as %1").arg(path)
                              : tr("Saved as %1, without %2 that could not be read")
                                    .arg(path, QLocale().toString(table.missing));
}

void SentWindow::save(const QString& path) {
    if (_model->isSearch() && _model->found().isEmpty()) {
        return;
    }
    _save->setEnabled(false);
    _store.save(path, _model->found(), this, [this, path](const SavedTable& table) {
        _save->setEnabled(true);
        _count->setText(savedText(path, table));
    });
}
