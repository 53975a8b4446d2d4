#include "shell/whatif/copyText.h"

#include "base/FormatNumber.h"
#include "shell/whatif/figures.h"
#include "shell/whatif/moneyParts.h"

namespace quillet {

QString CopyText(const Answers& oAnswers) {
  QStringList asLines = {"Where the money goes\tAmount\tPercent"};
  for (const ShownPart& oPart : ShownParts(oAnswers.oBreakdown)) {
    const std::string sShare = FormatNumber(oPart.fShare * 100, "0.0");
    asLines +=
        QStringList{oPart.sName, PlainAmount(oPart.fAmount), QString::fromStdString(sShare)}.join(
            '\t');
  }
  asLines += "";
  asLines += "What if\tFees\tProfit\tDifference";
  for (const Alternative& oOther : oAnswers.aoAlternatives) {
    asLines += QStringList{QString::fromStdString(oOther.sName), PlainAmount(oOther.fFees),
                           PlainAmount(oOther.fProfit), PlainAmount(oOther.fDifference)}
                   .join('\t');
  }
  return asLines.join('\n') + '\n';
}

}  // namespace quillet
