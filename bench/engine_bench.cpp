// What the engine costs, each figure next to a baseline from the same run.
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "allocations.h"
#include "answers/Alternatives.h"
#include "answers/Curve.h"
#include "answers/PriceFor.h"
#include "engine/clsCalculate.h"
#include "platform/Files.h"
#include "platform/TerminalHost.h"
#include "prices/clsPrices.h"

namespace quillet {
namespace {

const std::string kScheduleFile = std::string(QUILLET_SOURCE_DIR) + "/data/UpdateUS_v0101.dat";

/// Two categories, a dozen features, a picture pack, postage, a business account.
const std::string kBusyAuction =
    "[TYPE]000|False|False|3|0|0|0|False[TYPE][OUTLAY]320.5|99.99|0|880|3|True[OUTLAY]"
    "[FEATURES]308159|8[FEATURES][PAYPAL]True|2|3|True[PAYPAL]"
    "[POSTAGE]True|1.25|3|12.75|0|True|True|True|1.5|True[POSTAGE]";

std::string ScheduleText() {
  std::string sText;
  if (ReadWholeFile(kScheduleFile, clsPrices::kLargestFile, sText)) {
    std::abort();
  }
  return sText;
}

std::vector<std::string> KeysOfSchedule() {
  const PriceTable& oTable = Prices().Table();
  std::vector<std::string> asKeys;
  for (std::size_t i = 0; i < oTable.Size(); ++i) {
    asKeys.emplace_back(oTable.KeyAt(i));
  }
  return asKeys;
}

/// Ends the benchmark with an error if the engine used the heap.
void ForbidAllocations(benchmark::State& oState, std::int64_t nBefore) {
  if (Allocations() != nBefore) {
    oState.SkipWithError("memory was allocated");
  }
}

/// The baseline for the machine: a thousand bare look-ups of existing keys.
void BareLookUps(benchmark::State& oState) {
  const std::vector<std::string> asKeys = KeysOfSchedule();
  const PriceTable& oTable = Prices().Table();
  std::size_t nKey = 0;
  const std::int64_t nBefore = Allocations();
  for (auto _ : oState) {
    for (int i = 0; i < 1000; ++i) {
      benchmark::DoNotOptimize(oTable.Find(asKeys[nKey]));
      nKey = nKey + 1 == asKeys.size() ? 0 : nKey + 1;
    }
  }
  ForbidAllocations(oState, nBefore);
  oState.SetItemsProcessed(oState.iterations() * 1000);
}

void DoCalcOfABusyAuction(benchmark::State& oState) {
  clsCalculate oAuction;
  std::string sText = kBusyAuction;
  oAuction.Serialize(sText, false);
  const std::int64_t nBefore = Allocations();
  for (auto _ : oState) {
    oAuction.DoCalc();
    benchmark::DoNotOptimize(oAuction.m_fProfit);
  }
  ForbidAllocations(oState, nBefore);
}

void BreakEvenOfABusyAuction(benchmark::State& oState) {
  clsCalculate oAuction;
  std::string sText = kBusyAuction;
  oAuction.Serialize(sText, false);
  for (auto _ : oState) {
    benchmark::DoNotOptimize(PriceFor(oAuction, Goal{}));
  }
}

/// What the what-if window shows for an auction: two prices, the curve and the table.
void AnswersOfABusyAuction(benchmark::State& oState) {
  clsCalculate oAuction;
  std::string sText = kBusyAuction;
  oAuction.Serialize(sText, false);
  for (auto _ : oState) {
    benchmark::DoNotOptimize(PriceFor(oAuction, Goal{}));
    benchmark::DoNotOptimize(PriceFor(oAuction, {GoalKind::PercentOfPrice, 15}));
    benchmark::DoNotOptimize(Curve(oAuction, 0, 200'000));
    benchmark::DoNotOptimize(Alternatives(oAuction));
  }
}

void LoadTheShippedSchedule(benchmark::State& oState) {
  for (auto _ : oState) {
    clsPrices oPrices;
    oPrices.LoadFile(kScheduleFile);
    benchmark::DoNotOptimize(oPrices);
  }
}

/// The baseline for the load: only reading the bytes.
void ReadTheShippedSchedule(benchmark::State& oState) {
  for (auto _ : oState) {
    std::string sText = ScheduleText();
    benchmark::DoNotOptimize(sText);
  }
}

void SerializeAndReadBack(benchmark::State& oState) {
  clsCalculate oAuction;
  std::string sText = kBusyAuction;
  oAuction.Serialize(sText, false);
  for (auto _ : oState) {
    sText.clear();
    oAuction.Serialize(sText, true);
    oAuction.Serialize(sText, false);
    benchmark::DoNotOptimize(oAuction);
  }
}

/// The baseline for the text: copying it.
void CopyTheText(benchmark::State& oState) {
  for (auto _ : oState) {
    std::string sText = kBusyAuction;
    benchmark::DoNotOptimize(sText);
  }
}

void MakeAnAuction(benchmark::State& oState) {
  for (auto _ : oState) {
    clsCalculate oAuction;
    benchmark::DoNotOptimize(oAuction);
  }
}

BENCHMARK(BareLookUps);
BENCHMARK(DoCalcOfABusyAuction);
BENCHMARK(BreakEvenOfABusyAuction);
BENCHMARK(AnswersOfABusyAuction);
BENCHMARK(ReadTheShippedSchedule);
BENCHMARK(LoadTheShippedSchedule);
BENCHMARK(CopyTheText);
BENCHMARK(SerializeAndReadBack);
BENCHMARK(MakeAnAuction);

}  // namespace
}  // namespace quillet

int main(int nArguments, char** asArguments) {
  quillet::TerminalHost oHost;
  quillet::SetHost(oHost);
  auto oPrices = std::make_unique<quillet::clsPrices>();
  oPrices->LoadFile(quillet::kScheduleFile);
  quillet::UsePrices(std::move(oPrices));

  benchmark::Initialize(&nArguments, asArguments);
  if (benchmark::ReportUnrecognizedArguments(nArguments, asArguments)) {
    return 2;
  }
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
