#include "ui/qt/codon_table_editor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFont>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "core/genetic_code.h"
#include "core/set_name.h"
#include "formats/data_file_writer.h"
#include "formats/ovp_file.h"
#include "formats/ovp_writer.h"

namespace ovelt {

namespace {

QString Q(const std::string& text) {
  return QString::fromStdString(text);
}

const char* const kBases[] = {"T", "C", "A", "G"};

}  // namespace

// ---- Dialog --------------------------------------------------------------------------------

TableNameDialog::TableNameDialog(Platform& platform, QWidget* parent)
    : QDialog(parent), platform_(platform) {
  setWindowTitle("New Pref-UnPref Table");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel("Name of the new Preferred / Unpreferred Codons Table:"));
  name_ = new QLineEdit;
  name_->setObjectName("tableName");
  // As typed: a blank becomes "_", letters and digits pass, other keys are dropped.
  connect(name_, &QLineEdit::textEdited, this, [this](const QString& typed) {
    const QString kept = Q(FilterTypedName(typed.toStdString()));
    if (kept != typed) name_->setText(kept);
  });
  layout->addWidget(name_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &TableNameDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
}

std::string TableNameDialog::Name() const {
  return name_->text().toStdString();
}

void TableNameDialog::SetName(const std::string& name) {
  name_->setText(Q(name));
}

void TableNameDialog::accept() {
  if (auto refusal = ValidatePrefTableName(Name())) {
    if (!refusal->empty()) platform_.MessageBox(*refusal, MsgIcon::kWarning);
    return;
  }
  QDialog::accept();
}

// ---- Dialog1 -------------------------------------------------------------------------------

CodonStatusDialog::CodonStatusDialog(const std::string& cell_text, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(Q("Codon " + cell_text));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(Q("Preference Status of " + cell_text.substr(0, 3) + ":")));
  const std::pair<const char*, CodonChoice> options[] = {{"Preferred", CodonChoice::kPreferred},
                                                         {"Unknown", CodonChoice::kUnknown},
                                                         {"Unpreferred", CodonChoice::kUnpreferred},
                                                         {"Cancel", CodonChoice::kCancel}};
  for (const auto& [text, choice] : options) {
    auto* button = new QPushButton(text);
    button->setObjectName(text);
    const CodonChoice picked = choice;
    connect(button, &QPushButton::clicked, this, [this, picked] { Choose(picked); });
    layout->addWidget(button);
  }
}

void CodonStatusDialog::Choose(CodonChoice choice) {
  choice_ = choice;
  if (choice == CodonChoice::kCancel) {
    reject();
  } else {
    QDialog::accept();
  }
}

// ---- TBPrefUnPref --------------------------------------------------------------------------

CodonTableEditor::CodonTableEditor(ActiveData& active, Platform& platform, QWidget* parent)
    : QDialog(parent),
      data_(active),
      platform_(platform),
      session_(active.PrefTables, active.Format.GeneticCodeIndex, active.PrefTableName) {
  setWindowTitle("Preferred / Unpreferred Codons Table");
  AskName = [this]() -> std::optional<std::string> {
    TableNameDialog dialog(platform_, this);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.Name();
  };
  AskCodon = [this](int index) {
    CodonStatusDialog dialog(CodonCellText(session_.Shown(), index), this);
    dialog.exec();
    return dialog.Choice();
  };

  auto* layout = new QVBoxLayout(this);
  auto* combos = new QGridLayout;
  codes_ = new QComboBox;
  codes_->setObjectName("Combo1");
  for (int16_t gc = 1; gc <= kGeneticCodeCount; ++gc) codes_->addItem(Q(GeneticCodeText(gc)));
  tables_ = new QComboBox;
  tables_->setObjectName("Combo2");
  tables_->setMinimumContentsLength(24);
  combos->addWidget(new QLabel("Genetic Code:"), 0, 0);
  combos->addWidget(codes_, 0, 1);
  combos->addWidget(new QLabel("Table:"), 1, 0);
  combos->addWidget(tables_, 1, 1);
  combos->setColumnStretch(2, 1);
  layout->addLayout(combos);

  table_heading_ = new QLabel;
  code_heading_ = new QLabel;
  QFont bold = table_heading_->font();
  bold.setBold(true);
  table_heading_->setFont(bold);
  layout->addWidget(table_heading_);
  layout->addWidget(code_heading_);

  grid_ = new QTableWidget(16, 4);
  grid_->setObjectName("codons");
  grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid_->setSelectionMode(QAbstractItemView::NoSelection);
  grid_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  QStringList second, first_third;
  for (const char* b : kBases) second << QString(b);
  for (const char* a : kBases)
    for (const char* c : kBases) first_third << QString("%1..%2").arg(a, c);
  grid_->setHorizontalHeaderLabels(second);
  grid_->setVerticalHeaderLabels(first_third);
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  grid_->verticalHeader()->setDefaultSectionSize(22);
  grid_->setMinimumSize(460, 16 * 22 + 30);
  connect(grid_, &QTableWidget::cellClicked, this,
          [this](int row, int column) { ClickCodon((row / 4) * 16 + column * 4 + row % 4 + 1); });
  layout->addWidget(grid_, 1);

  legend_ = new QLabel;
  legend_->setObjectName("legend");
  legend_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  layout->addWidget(legend_);

  auto* row = new QHBoxLayout;
  edit_new_ = new QPushButton;
  edit_new_->setObjectName("editNew");
  edit_ = new QPushButton("Edit Table");
  edit_->setObjectName("edit");
  delete_ = new QPushButton("Delete Table");
  delete_->setObjectName("delete");
  read_ = new QPushButton("Read Table File...");
  read_->setObjectName("read");
  save_ = new QPushButton("Save Table File...");
  save_->setObjectName("save");
  for (QPushButton* b : {edit_new_, edit_, delete_, read_, save_}) row->addWidget(b);
  layout->addLayout(row);
  connect(edit_new_, &QPushButton::clicked, this, &CodonTableEditor::EditNewOrClose);
  connect(edit_, &QPushButton::clicked, this, &CodonTableEditor::EditSelected);
  connect(delete_, &QPushButton::clicked, this, &CodonTableEditor::DeleteSelected);
  connect(read_, &QPushButton::clicked, this, &CodonTableEditor::ReadTableFile);
  connect(save_, &QPushButton::clicked, this, &CodonTableEditor::SaveTableFile);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &CodonTableEditor::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);

  connect(codes_, &QComboBox::currentIndexChanged, this, [this](int i) {
    if (showing_) return;
    if (session_.SelectGeneticCode(static_cast<int16_t>(i + 1)))
      ShowMessage(session_.NoBuiltInNotice());
    ShowSession();
  });
  connect(tables_, &QComboBox::currentTextChanged, this, [this](const QString& name) {
    if (showing_) return;
    session_.SelectTable(name.toStdString());
    ShowSession();
  });
  ShowSession();
}

std::pair<int, int> CodonTableEditor::CellOf(int index) {
  const int i = index - 1;
  return {(i / 16) * 4 + i % 4, (i / 4) % 4};
}

void CodonTableEditor::ShowSession() {
  showing_ = true;
  codes_->setCurrentIndex(session_.GeneticCode() - 1);
  tables_->clear();
  for (const std::string& name : session_.TableNames()) tables_->addItem(Q(name));
  const bool editing = session_.Editing();
  // In edition mode the combo names the table being edited, which may be new.
  const QString shown_name = Q(editing ? session_.Shown().name() : session_.SelectedName());
  if (tables_->findText(shown_name) < 0) tables_->addItem(shown_name);
  tables_->setCurrentText(shown_name);
  codes_->setEnabled(!editing);
  tables_->setEnabled(!editing);
  showing_ = false;

  table_heading_->setText(Q(session_.TableHeading()));
  code_heading_->setText(Q(session_.CodeHeading()));
  const CodPrefUnPref& table = session_.Shown();
  for (int index = 1; index <= 64; ++index) {
    const auto [r, c] = CellOf(index);
    auto* item = new QTableWidgetItem(Q(CodonCellText(table, index)));
    const int16_t status = table.prefUnPref(index);
    if (status >= kPreferred1) {
      item->setBackground(QColor(0xd8, 0xf0, 0xd0));
    } else if (!CodonEditable(table, index)) {
      item->setForeground(QColor(0x70, 0x70, 0x70));
    }
    grid_->setItem(r, c, item);
  }
  QStringList legend;
  for (const std::string& line : session_.Legend()) legend << Q(line);
  legend_->setText(legend.join("\n"));
  edit_new_->setText(Q(session_.EditButtonCaption()));
  edit_->setEnabled(session_.CanEditSelected());
  delete_->setEnabled(session_.CanDeleteSelected());
  read_->setEnabled(!editing);
  save_->setEnabled(!editing);
}

void CodonTableEditor::ShowMessage(const std::optional<std::string>& message) {
  if (message && !message->empty()) platform_.MessageBox(*message, MsgIcon::kInformation);
}

void CodonTableEditor::EditNewOrClose() {
  if (session_.Editing()) {
    ShowMessage(session_.CloseEdition());
  } else if (const std::optional<std::string> name = AskName()) {
    ShowMessage(session_.BeginNewTable(*name));
  }
  ShowSession();
}

void CodonTableEditor::EditSelected() {
  session_.BeginEditSelected();
  ShowSession();
}

void CodonTableEditor::DeleteSelected() {
  if (!session_.CanDeleteSelected()) return;
  if (platform_.MessageBox(session_.SelectedName() + " ?", MsgIcon::kQuestion,
                           MsgButtons::kOkCancel, "Careful!") != MsgAnswer::kOk)
    return;
  session_.DeleteSelected();
  ShowSession();
}

void CodonTableEditor::ReadTableFile() {
  const std::optional<std::string> path =
      platform_.OpenFileName("Open Pref-UnPref Table File", kOvpFilter);
  if (!path) return;
  const std::string message = ReadOvpFile(*path, session_.GeneticCode(), session_.MutableStore());
  if (!message.empty()) platform_.MessageBox(message, MsgIcon::kCritical);
  session_.Reselect();
  ShowSession();
}

void CodonTableEditor::SaveTableFile() {
  if (const std::optional<std::string> refusal = session_.SaveRefusal()) {
    ShowMessage(refusal);
    return;
  }
  const std::optional<std::string> path = platform_.SaveFileName(
      "Save Pref-UnPref Table: " + session_.SelectedName(), kOvpFilter, "*.ovp");
  if (!path) return;
  if (!WriteOvpFile(*path, session_.Shown()))
    platform_.MessageBox(kErrorInSaving, MsgIcon::kCritical);
}

void CodonTableEditor::ClickCodon(int index) {
  if (!session_.Editing() || !CodonEditable(session_.Shown(), index)) return;
  if (session_.SetCodon(index, AskCodon(index))) ShowSession();
}

void CodonTableEditor::accept() {
  if (session_.Editing()) ShowMessage(session_.CloseEdition());
  data_.PrefTables = session_.Store();
  data_.PrefTableName = session_.Assigned();
  QDialog::accept();
}

}  // namespace ovelt
