#include "ui/qt/analysis_dialogs.h"

#include "analyses/polymorphism/diversity/dna_polymorphism_run.h"
#include "analyses/polymorphism/neutrality/fu_li_outgroup_run.h"
#include "analyses/polymorphism/neutrality/fu_li_run.h"
#include "analyses/polymorphism/overview/overview_run.h"
#include "analyses/polymorphism/size_changes/size_change_run.h"
#include "analyses/polymorphism/neutrality/tajima_run.h"
#include "shell/command_table.h"
#include "ui/qt/main_window.h"

namespace ovelt {

void AddAnalysisHandlers(MainWindow& window) {
  Workbench& wb = window.Bench();
  QWidget* parent = &window;
  window.AddHandler("MenuDnaPol_Click", [parent, &wb] {
    RunAnalysisWithDialog<DnaPolOptions>(parent, wb, kDnaPolymorphismCommand,
                                         [&wb](DnaPolOptions& o) {
                                           return RunDnaPolymorphism(wb.Data(), wb.Output(),
                                                                     wb.Ui(), o, nullptr);
                                         });
  });
  window.AddHandler("MenuTajimaTest_Click", [parent, &wb] {
    RunAnalysisWithDialog<NeutralityOptions>(parent, wb, kTajimaCommand,
                                             [&wb](NeutralityOptions& o) {
                                               return RunTajimaTest(wb.Data(), wb.Output(),
                                                                    wb.Ui(), o, nullptr);
                                             });
  });
  window.AddHandler("MenuFuLi_Click", [parent, &wb] {
    RunAnalysisWithDialog<NeutralityOptions>(parent, wb, kFuLiCommand, [&wb](NeutralityOptions& o) {
      return RunFuLiTest(wb.Data(), wb.Output(), wb.Ui(), o, nullptr);
    });
  });
  window.AddHandler("MenuFuLiOutgroupNew_Click", [parent, &wb] {
    RunAnalysisWithDialog<FuLiOutgroupOptions>(parent, wb, kFuLiOutgroupCommand,
                                               [&wb](FuLiOutgroupOptions& o) {
                                                 return RunFuLiOutgroupTest(wb.Data(), wb.Output(),
                                                                            wb.Ui(), o, nullptr);
                                               });
  });
  window.AddHandler("MenuPairwise_Click", [parent, &wb] {
    RunAnalysisWithDialog<SizeChangeOptions>(parent, wb, 15, [&wb](SizeChangeOptions& o) {
      return RunSizeChange(wb.Data(), wb.Output(), wb.Ui(), o, nullptr);
    });
  });
  window.AddHandler("MenuIntraData_Click", [parent, &wb] {
    RunAnalysisWithDialog<OverviewOptions>(parent, wb, 24, [&wb](OverviewOptions& o) {
      return RunOverview(wb.Data(), wb.Output(), wb.Ui(), o, nullptr);
    });
  });
  window.AddHandler("MenuMultiBlock_Click", [parent, &wb] {
    RunAnalysisWithDialog<MultiDomainOptions>(parent, wb, 33, [&wb](MultiDomainOptions& o) {
      return RunMultiDomain(wb.Data(), wb.Output(), wb.Ui(), o, nullptr);
    });
  });
}

}  // namespace ovelt
