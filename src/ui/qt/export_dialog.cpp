#include "ui/qt/export_dialog.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include "shell/workbench.h"
#include "formats/data_file_writer.h"
#include "formats/update_nexus.h"
#include "ui/qt/codon_table_editor.h"
#include "ui/qt/main_window.h"
#include "ui/qt/nexus_options_dialog.h"

namespace ovelt {

ExportDialog::ExportDialog(QWidget* parent) : QDialog(parent) {
  setWindowTitle("Save / Export Data As");
  auto* layout = new QVBoxLayout(this);
  auto* frame = new QGroupBox("Save / Export Data As:");
  auto* frame_layout = new QVBoxLayout(frame);
  // The ".rdf" file of the Network software is not among them: it is written by the Generate
  // menu's haplotype file.
  for (const WriterKind& kind : WriterKinds()) {
    auto* button = new QRadioButton(QString::fromStdString(kind.MenuText));
    button->setObjectName(QString::fromStdString(kind.Key));
    frame_layout->addWidget(button);
    choices_.emplace_back(kind.MenuIndex, button);
  }
  choices_.front().second->setChecked(true);
  layout->addWidget(frame);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
}

int ExportDialog::MenuIndex() const {
  for (const auto& [index, button] : choices_)
    if (button->isChecked()) return index;
  return choices_.front().first;
}

void ExportDialog::SelectMenuIndex(int menu_index) {
  for (const auto& [index, button] : choices_)
    if (index == menu_index) button->setChecked(true);
}

void AddExportHandlers(MainWindow& window) {
  Workbench& wb = window.Bench();
  QWidget* parent = &window;
  window.AddHandler("export_Click", [parent, &wb] {
    ExportDialog dialog(parent);
    if (dialog.exec() != QDialog::Accepted) return;
    ExportDataFile(wb.Data(), wb.Ui(), dialog.MenuIndex(), kVersionText);
    wb.SetStatus(0);
  });
  window.AddHandler("MenuUpdateNEXUS_Click", [&wb] {
    // The shape of the file as its reader recorded it; without one the file is written as the
    // plain writer writes it.
    const NexusDocument document = wb.NexusBlocks().value_or(NexusDocument{});
    UpdateNexusDataFile(wb.Data(), document, wb.ReadPath(), wb.Ui(), kVersionText);
    wb.SetStatus(0);
  });
  window.AddHandler("MenuSalvarData_Click", [parent, &wb] {
    NexusOptionsDialog dialog(wb.Data().Format, wb.Ui(), parent);
    dialog.exec();
  });
  window.AddHandler("MenuGCPreferentTable_Click", [parent, &wb] {
    CodonTableEditor editor(wb.Data(), wb.Ui(), parent);
    editor.exec();
  });
}

}  // namespace ovelt
