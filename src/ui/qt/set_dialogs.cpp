#include "ui/qt/set_dialogs.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFont>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/set_name.h"
#include "shell/workbench.h"

namespace ovelt {

namespace {

QString Q(const std::string& text) { return QString::fromStdString(text); }

std::vector<std::pair<int32_t, std::string>> SequenceRows(const ActiveData& d,
                                                          const std::vector<int32_t>& seqs) {
  std::vector<std::pair<int32_t, std::string>> rows;
  for (const int32_t seq : seqs) rows.emplace_back(seq, SequenceListEntry(d, seq));
  return rows;
}

std::vector<std::pair<int32_t, std::string>> SetRows(const forms_class& work,
                                                     const std::vector<int32_t>& sets) {
  std::vector<std::pair<int32_t, std::string>> rows;
  for (const int32_t set : sets) rows.emplace_back(set, work.record(set).name);
  return rows;
}

}  // namespace

SetNameDialog::SetNameDialog(QWidget* parent) : QDialog(parent) {
  setWindowTitle("Ovelt");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(Q(kSetNamePrompt)));
  field_ = new QLineEdit;
  layout->addWidget(field_);
  // The filter works key by key, as the name is typed.
  connect(field_, &QLineEdit::textEdited, this, [this](const QString& typed) {
    const QString kept = Q(FilterTypedName(typed.toStdString()));
    if (kept != typed) {
      const int cursor = field_->cursorPosition() - static_cast<int>(typed.size() - kept.size());
      field_->setText(kept);
      field_->setCursorPosition(std::max(0, cursor));
    }
  });
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Ok)->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
}

std::string SetNameDialog::Name() const { return field_->text().toStdString(); }

TwoListPanel::TwoListPanel(const QString& include_caption, const QString& exclude_caption,
                           QWidget* parent)
    : QWidget(parent) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  auto side = [this, layout](const QString& title, const QString& move_caption, bool left) {
    auto* box = new QGroupBox(title);
    auto* column = new QVBoxLayout(box);
    auto* list = new QListWidget;
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    QFont fixed("Monospace");
    fixed.setStyleHint(QFont::TypeWriter);
    list->setFont(fixed);
    column->addWidget(list);
    auto* move = new QPushButton(move_caption);
    auto* all = new QPushButton("Select All");
    auto* none = new QPushButton("Unselect All");
    column->addWidget(move);
    auto* row = new QHBoxLayout;
    row->addWidget(all);
    row->addWidget(none);
    column->addLayout(row);
    connect(all, &QPushButton::clicked, list, &QListWidget::selectAll);
    connect(none, &QPushButton::clicked, list, &QListWidget::clearSelection);
    connect(move, &QPushButton::clicked, this, [this, list, left] {
      if (left) emit IncludeRequested(Selected(list));
      else emit ExcludeRequested(Selected(list));
    });
    layout->addWidget(box);
    return list;
  };
  left_ = side("Excluded", include_caption, true);
  right_ = side("Included List", exclude_caption, false);
}

void TwoListPanel::Fill(QListWidget* list,
                        const std::vector<std::pair<int32_t, std::string>>& rows) {
  list->clear();
  for (const auto& [number, text] : rows) {
    auto* item = new QListWidgetItem(Q(text), list);
    item->setData(Qt::UserRole, number);
  }
}

std::vector<int32_t> TwoListPanel::Selected(const QListWidget* list) {
  std::vector<int32_t> numbers;
  for (int row = 0; row < list->count(); ++row)
    if (list->item(row)->isSelected()) numbers.push_back(list->item(row)->data(Qt::UserRole).toInt());
  return numbers;
}

DefineSetsDialog::DefineSetsDialog(Workbench& workbench, QWidget* parent)
    : QDialog(parent), workbench_(workbench), session_(workbench.Data()) {
  setWindowTitle("Define Sequence Sets");
  auto* layout = new QVBoxLayout(this);

  auto* top = new QHBoxLayout;
  sets_ = new QComboBox;
  sets_->setMinimumWidth(200);
  add_ = new QPushButton("Add new Sequence Set");
  save_ = new QPushButton(Q(kModifySetButton));
  rename_ = new QPushButton("Rename...");
  remove_ = new QPushButton("Remove");
  top->addWidget(sets_, 1);
  top->addWidget(add_);
  top->addWidget(save_);
  top->addWidget(rename_);
  top->addWidget(remove_);
  layout->addLayout(top);

  lists_ = new TwoListPanel("Include sequence/s ", "Exclude sequence/s");
  layout->addWidget(lists_, 1);
  connect(lists_, &TwoListPanel::IncludeRequested, this, [this](const std::vector<int32_t>& s) {
    session_.Include(s);
    Reload();
  });
  connect(lists_, &TwoListPanel::ExcludeRequested, this, [this](const std::vector<int32_t>& s) {
    session_.Exclude(s);
    Reload();
  });
  connect(sets_, &QComboBox::activated, this, &DefineSetsDialog::ChooseSet);
  connect(add_, &QPushButton::clicked, this, &DefineSetsDialog::AddSet);
  connect(save_, &QPushButton::clicked, this, &DefineSetsDialog::SaveSet);
  connect(rename_, &QPushButton::clicked, this, &DefineSetsDialog::RenameSet);
  connect(remove_, &QPushButton::clicked, this, &DefineSetsDialog::RemoveSet);

  auto* reminder = new QLabel(Q(kSetsNexusReminder));
  reminder->setWordWrap(true);
  layout->addWidget(reminder);
  auto* buttons = new QDialogButtonBox;
  buttons->addButton("Update All Entries", QDialogButtonBox::AcceptRole);
  buttons->addButton("Cancel All Entries", QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &DefineSetsDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &DefineSetsDialog::reject);
  layout->addWidget(buttons);
  resize(720, 480);
  Reload();
}

void DefineSetsDialog::Reload() {
  const ActiveData& d = workbench_.Data();
  TwoListPanel::Fill(lists_->Left(), SequenceRows(d, session_.ExcludedList()));
  TwoListPanel::Fill(lists_->Right(), SequenceRows(d, session_.IncludedList()));
  sets_->clear();
  for (const std::string& entry : session_.Work().copyToComboBox()) sets_->addItem(Q(entry));
  sets_->setCurrentIndex(session_.Current());
  save_->setText(Q(session_.SaveButtonCaption()));
  const bool chosen = session_.Current() > 0;
  save_->setEnabled(chosen);
  rename_->setEnabled(chosen);
  remove_->setEnabled(chosen);
  add_->setEnabled(!chosen);
}

void DefineSetsDialog::Show(const SetDialogMessage& message) {
  workbench_.Ui().MessageBox(message.text, MsgIcon::kInformation, MsgButtons::kOk, message.title);
}

void DefineSetsDialog::OfferSave() {
  const std::optional<std::string> question = session_.SaveQuestion();
  if (!question) return;
  if (workbench_.Ui().MessageBox(*question, MsgIcon::kQuestion, MsgButtons::kYesNo) ==
      MsgAnswer::kYes)
    Show(session_.SaveCurrent());
}

void DefineSetsDialog::ChooseSet(int index) {
  if (index != session_.Current()) OfferSave();
  session_.Choose(index);
  Reload();
}

std::optional<std::string> DefineSetsDialog::AskName(const QString& initial) {
  SetNameDialog ask(this);
  ask.Field()->setText(initial);
  if (ask.exec() != QDialog::Accepted) return std::nullopt;
  return ask.Name();
}

void DefineSetsDialog::AddSet() {
  const std::optional<std::string> name = AskName("");
  if (!name) return;
  const std::optional<std::string> refusal = session_.AddNew(*name);
  if (refusal && !refusal->empty())
    workbench_.Ui().MessageBox(*refusal, MsgIcon::kWarning);
  Reload();
}

void DefineSetsDialog::SaveSet() {
  Show(session_.SaveCurrent());
  Reload();
}

void DefineSetsDialog::RenameSet() {
  const int32_t index = session_.Current();
  if (index < 1) return;
  const std::optional<std::string> name = AskName(Q(session_.Work().record(index).name));
  if (!name) return;
  const std::optional<std::string> refusal = session_.Rename(index, *name);
  if (refusal && !refusal->empty()) workbench_.Ui().MessageBox(*refusal, MsgIcon::kWarning);
  Reload();
}

void DefineSetsDialog::RemoveSet() {
  const int32_t index = session_.Current();
  if (index < 1) return;
  if (workbench_.Ui().MessageBox(session_.RemoveQuestion(index), MsgIcon::kQuestion, MsgButtons::kYesNo) !=
      MsgAnswer::kYes)
    return;
  session_.Remove(index);
  Reload();
}

void DefineSetsDialog::accept() {
  OfferSave();
  session_.Apply(workbench_.Data());
  QDialog::accept();
}

ActivePopulationsDialog::ActivePopulationsDialog(Workbench& workbench, QWidget* parent)
    : QDialog(parent), workbench_(workbench), session_(workbench.Data()) {
  setWindowTitle("Include/Exclude Populations");
  auto* layout = new QVBoxLayout(this);
  lists_ = new TwoListPanel("Include population/s ", "Exclude population/s");
  layout->addWidget(lists_, 1);
  connect(lists_, &TwoListPanel::IncludeRequested, this, [this](const std::vector<int32_t>& s) {
    session_.Include(s);
    Reload();
  });
  connect(lists_, &TwoListPanel::ExcludeRequested, this, [this](const std::vector<int32_t>& s) {
    session_.Exclude(s);
    Reload();
  });
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &ActivePopulationsDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &ActivePopulationsDialog::reject);
  layout->addWidget(buttons);
  resize(560, 380);
  Reload();
}

void ActivePopulationsDialog::Reload() {
  TwoListPanel::Fill(lists_->Left(), SetRows(session_.Work(), session_.ExcludedPopulations()));
  TwoListPanel::Fill(lists_->Right(), SetRows(session_.Work(), session_.IncludedPopulations()));
}

void ActivePopulationsDialog::accept() {
  if (const std::optional<std::string> refusal = session_.Confirm(workbench_.Data())) {
    workbench_.Ui().MessageBox(*refusal, MsgIcon::kWarning);
    return;  // the dialog stays
  }
  QDialog::accept();
}

}  // namespace ovelt
