// The benchmark suite: each task on each input through paxorel, through raw
// Xerces doing the same work the way the library drives it, and through
// pugixml and libxml2 for context. Benchmarks are named
// "task/implementation/input"; once all have run, one table sets each
// implementation beside raw Xerces.
//
// `--memory=IMPLEMENTATION:FILE` and `--memory=IMPLEMENTATION:` are the
// hidden modes in which the suite re-runs itself to measure, in a fresh
// process, one parse and walk of FILE, or the setAttribute loop.
#include "implementations.hpp"
#include "table.hpp"

#include <benchmark/benchmark.h>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <fstream>
#include <functional>
#include <iomanip>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <system_error>

namespace bench {

namespace {

// A task whose `quadratic` note is set may grow with the square of the
// longest child list on some implementations; it runs on an input only if
// a projection of its time (see project) stays under projectionLimit seconds.
struct Task {
  const char* name;
  const char* quadratic;
};

const Task tasks[] = {
    {"parseFile", nullptr},
    {"parseString", nullptr},
    {"walkSiblings", nullptr},
    {"walkItem", "quadratic in Xerces"},
    {"walkChildren", nullptr},
    {"writeToString", nullptr},
    {"writeToURI", nullptr},
    {"evaluate", nullptr},
    {"getNodeIndex", nullptr},
};

constexpr double projectionLimit = 10;

// An input and how often to time each task on it. The largest takes
// seconds per run: one run per repetition, and fewer repetitions.
struct Workload {
  Input input;
  int repetitions;  // 0 for as many as the command line asks
};

const std::vector<Workload>& workloads() {
  static const std::vector<Workload> made = {
      {Input(Input::Shape::catalogue, 1'000'000), 0},   {Input(Input::Shape::catalogue, 10'000'000), 0},
      {Input(Input::Shape::catalogue, 100'000'000), 3}, {Input(Input::Shape::deep, 10'000), 0},
      {Input(Input::Shape::wide, 1'000'000), 0},
  };
  return made;
}

const std::vector<Implementation>& implementations() {
  static const std::vector<Implementation> made = {xerces(), paxorel(), pugixml(), libxml2()};
  return made;
}

double seconds(const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  benchmark::DoNotOptimize(work());
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// How one run of a task on an input is expected to grow and how long it
// would take.
struct Projection {
  double exponent;
  double seconds;
};

// Projects from copies of the input that double in size until a run takes
// 0.2 s: the growth between the last two gives the exponent. A task that
// stays quicker than that is timed on the input itself.
Projection project(const Prepare& prepare, const Input& input) {
  const auto quickest = [&](const Input& on) {
    const Work work = prepare(on);
    return std::min({seconds(work), seconds(work), seconds(work)});
  };
  double previous = 0;
  for (std::size_t divisor = 1 << 12; divisor > 1; divisor /= 2) {
    const double taken = quickest(input.scaledDown(divisor));
    if (taken > 0.2 && previous > 0) {
      const double exponent = std::clamp(std::log2(taken / previous), 1.0, 3.0);
      return {exponent, taken * std::pow(static_cast<double>(divisor), exponent)};
    }
    previous = taken;
  }
  return {1, quickest(input)};
}

std::string nameOf(const std::string& task, const Implementation& implementation, const std::string& input) {
  return task + "/" + implementation.name + "/" + input;
}

// Registers `body` by nameOf; an exception from it fails that benchmark with
// its message rather than ending the run.
benchmark::internal::Benchmark* add(const std::string& task, const Implementation& implementation,
                                    const std::string& input, std::function<void(benchmark::State&)> body) {
  const auto guarded = [body = std::move(body)](benchmark::State& state) {
    try {
      body(state);
    } catch (const std::exception& e) {
      state.SkipWithError(e.what());
    }
  };
  return benchmark::RegisterBenchmark(nameOf(task, implementation, input).c_str(), guarded)
      ->Unit(benchmark::kMillisecond);
}

void addTimed(const Task& task, const Implementation& implementation, const Workload& workload) {
  const auto found = implementation.tasks.find(task.name);
  if (found == implementation.tasks.end()) return;
  const Input& input = workload.input;
  // Mutable: the projection is made at the first repetition and kept.
  const auto body = [prepare = found->second, &input, task, name = nameOf(task.name, implementation, input.name()),
                     projected = std::optional<Projection>()](benchmark::State& state) mutable {
    if (task.quadratic) {
      if (!projected) {
        projected = project(prepare, input);
        if (projected->seconds > projectionLimit) {
          std::cerr << name << ": grows as n^" << std::setprecision(2) << projected->exponent << ", "
                    << std::lround(projected->seconds) << " s a run projected, left out\n";
        }
      }
      if (projected->seconds > projectionLimit) {
        state.SkipWithError(task.quadratic);
        return;
      }
    }
    const Work work = prepare(input);
    for (auto _ : state) benchmark::DoNotOptimize(work());
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(input.utf8().size()));
  };
  auto* added = add(task.name, implementation, input.name(), body);
  if (workload.repetitions) added->Iterations(1)->Repetitions(workload.repetitions);
}

// The row of the memory task that shows the setAttribute loop.
const char* const setAttributeRow = "setAttribute";

// The peak resident memory, in kilobytes, that parsing and walking the file
// at `path` adds to a fresh process of this program; with no path, the
// setAttribute loop.
double peakKilobytes(const std::string& implementation, const std::string& path) {
  int pipe[2];
  if (::pipe(pipe) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
  posix_spawn_file_actions_addclose(&actions, pipe[0]);
  posix_spawn_file_actions_addclose(&actions, pipe[1]);
  std::string self = "/proc/self/exe";
  std::string mode = "--memory=" + implementation + ":" + path;
  char* arguments[] = {self.data(), mode.data(), nullptr};
  pid_t child = 0;
  const int failed = posix_spawn(&child, self.c_str(), &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  close(pipe[1]);
  std::string output;
  char buffer[256];
  for (ssize_t got; !failed && (got = ::read(pipe[0], buffer, sizeof buffer)) > 0;) output.append(buffer, got);
  close(pipe[0]);
  if (failed) throw std::system_error(failed, std::generic_category(), "posix_spawn");
  int status = 0;
  waitpid(child, &status, 0);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) throw std::runtime_error("the measuring process failed");
  return std::stod(output);
}

// A row of the memory task: parsing and walking `input`, or with none the
// setAttribute loop. The input's file is made only when the row runs.
void addMemory(const Implementation& implementation, const std::string& row, const Input* input) {
  const auto measure = [&implementation, input](benchmark::State& state) {
    const std::string path = input ? input->path() : std::string();
    double kilobytes = 0;
    for (auto _ : state) kilobytes = peakKilobytes(implementation.name, path);
    state.counters["peak_KB"] = kilobytes;
  };
  add(memoryTask, implementation, row, measure)->Iterations(1)->Repetitions(1);
}

// The peak resident set of this process so far, in kilobytes. Not
// getrusage's ru_maxrss: Linux carries that across exec from the process
// that spawned this one, the benchmark run with all its trees.
long peakResidentKilobytes() {
  std::ifstream status("/proc/self/status");
  const std::string field = "VmHWM:";
  for (std::string line; std::getline(status, line);) {
    if (line.rfind(field, 0) == 0) return std::stol(line.substr(field.size()));
  }
  throw std::runtime_error("no VmHWM in /proc/self/status");
}

// The hidden mode: `request` is "IMPLEMENTATION:FILE", or "IMPLEMENTATION:"
// for the setAttribute loop. The libraries have started before the first
// reading, so only the work counts.
int measureMemory(const std::string& request) {
  const std::size_t colon = request.find(':');
  const std::string path = request.substr(colon + 1);
  for (const Implementation& implementation : implementations()) {
    if (implementation.name != request.substr(0, colon)) continue;
    // A first call of the loop pages in the code that it runs, which is
    // not what the row is about: the growth with the number of calls.
    if (path.empty()) implementation.setAttributeLoop(1);
    const long before = peakResidentKilobytes();
    benchmark::DoNotOptimize(path.empty() ? implementation.setAttributeLoop(setAttributeCalls)
                                          : implementation.parseAndWalk(path));
    std::cout << peakResidentKilobytes() - before << '\n';
    return 0;
  }
  std::cerr << "no implementation " << request << '\n';
  return 2;
}

// Shows every run as the console reporter does, and keeps the times and
// kilobytes for the table it prints at the end.
class TableReporter : public benchmark::ConsoleReporter {
 public:
  using ConsoleReporter::ConsoleReporter;

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      const std::string& name = run.run_name.function_name;
      if (run.error_occurred) {
        table_.addFailure(name, run.error_message);
      } else if (run.run_type == Run::RT_Iteration || (run.aggregate_name == "median" && !table_.hasSamples(name))) {
        table_.addSample(name, value(run));  // the median itself when only aggregates are reported
      }
    }
    ConsoleReporter::ReportRuns(runs);
  }

  void Finalize() override {
    std::vector<std::string> taskNames;
    for (const Task& task : tasks) taskNames.emplace_back(task.name);
    taskNames.emplace_back(memoryTask);
    std::vector<std::string> inputNames;
    for (const Workload& workload : workloads()) inputNames.push_back(workload.input.name());
    inputNames.emplace_back(setAttributeRow);
    GetOutputStream() << "\nMedians over the repetitions; memory is the peak resident growth of parseFile and a "
                         "first-child/next-sibling walk in a fresh process, and of "
                      << setAttributeCalls << " setAttribute calls on one attribute.\n\n"
                      << table_.render(taskNames, inputNames);
    ConsoleReporter::Finalize();
  }

 private:
  static double value(const Run& run) {
    if (run.run_name.function_name.rfind(std::string(memoryTask) + "/", 0) == 0) return run.counters.at("peak_KB");
    return run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
  }

  Table table_;
};

int run(int argc, char** argv) {
  const std::string memoryFlag = "--memory=";
  if (argc == 2 && std::string(argv[1]).rfind(memoryFlag, 0) == 0) {
    return measureMemory(argv[1] + memoryFlag.size());
  }
  for (const Task& task : tasks) {
    for (const Workload& workload : workloads()) {
      for (const Implementation& implementation : implementations()) addTimed(task, implementation, workload);
    }
  }
  for (const Workload& workload : workloads()) {
    for (const Implementation& implementation : implementations()) {
      addMemory(implementation, workload.input.name(), &workload.input);
    }
  }
  for (const Implementation& implementation : implementations()) {
    if (implementation.setAttributeLoop) addMemory(implementation, setAttributeRow, nullptr);
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  TableReporter reporter(isatty(STDOUT_FILENO) ? benchmark::ConsoleReporter::OO_ColorTabular
                                               : benchmark::ConsoleReporter::OO_Tabular);
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  return 0;
}

}  // namespace

}  // namespace bench

int main(int argc, char** argv) {
  try {
    return bench::run(argc, argv);
  } catch (const std::exception& e) {
    std::cerr << "paxorel_bench: " << e.what() << '\n';
    return 1;
  }
}
