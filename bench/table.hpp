#pragma once

#include <map>
#include <string>
#include <vector>

namespace bench {

/// The task whose values are kilobytes of peak memory rather than seconds.
inline const char* const memoryTask = "memory";

/// Results of benchmarks named "task/implementation/input", drawn up as one
/// table: a row per task and input, with raw Xerces and paxorel side by side
/// and paxorel, pugixml and libxml2 as ratios to Xerces.
class Table {
 public:
  /// One measurement: seconds per run, or kilobytes for the memory task.
  void addSample(const std::string& name, double value);
  bool hasSamples(const std::string& name) const;
  /// Why `name` did not run; its cell shows "n/a" and the row the reason.
  void addFailure(const std::string& name, const std::string& reason);

  /// Rows in the order in which `tasks`, then `inputs` list them, for each
  /// pair with a result; each value is the median of its samples. A peer
  /// that did not run leaves its column blank.
  std::string render(const std::vector<std::string>& tasks, const std::vector<std::string>& inputs) const;

 private:
  struct Cell {
    std::vector<double> samples;
    std::string failure;
  };
  const Cell* find(const std::string& task, const std::string& implementation, const std::string& input) const;

  std::map<std::string, Cell> cells_;  // by benchmark name
};

}  // namespace bench
