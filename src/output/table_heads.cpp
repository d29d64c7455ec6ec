#include "output/table_heads.h"

namespace ovelt {

std::string DefaultGridTextHead(int result_code) {
  switch (result_code) {
    case 2: return "     Window  Midpoint  Pi     Theta      S";
    case 3: return "     Window Midpoint Pi(1)    Pi(2)     Dxy       Da";
    case 4: return "Site1  Site2   Dist     D       D'      R";
    case 5: return "     Window Midpoint  D     Sign";
    case 6: return "     Window Midpoint  Psi";
    case 8: return "Seq 1       Seq 2        SynDif   SynPos    Ks    NSynDif  NSynPos    Ka";
    case 9:
    case 10:
      return "                                   Locus 1       Locus 2\r\n"
             "                                   -------       -------";
    case 11: return "     Window Midpoint   D*    Sign     F*    Sign";
    case 12: return "     Window Midpoint   FL-D  Sign     FL-F  Sign     FW-H";
    case 15: return "Differences  Freq. Obs.  Freq. Exp.";
    case 17: return "                  Region  SitesT Pi(Tot) Pi(Sil) ThetaT  Theta(Sil) ";
    case 23:
      return "Sequence_Name         ENC     CBI    SChi2   G+Cn    G+C2    G+C3s   G+Cc    G+Cc";
    case 29: return "         Position            Ancestral -> Derived    Freq.   Status       Change";
    default: return "";
  }
}

std::string GridTextRule(int result_code) {
  constexpr size_t kRule = 74;
  constexpr size_t kCodonUsageExtra = 8;
  return std::string(result_code == 23 ? kRule + kCodonUsageExtra : kRule, '-');
}

std::string GridCellSeparator(int result_code) { return result_code == 17 ? " " : "  "; }

}  // namespace ovelt
