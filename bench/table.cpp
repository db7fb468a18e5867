#include "table.hpp"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <sstream>

namespace bench {

namespace {

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

std::string printed(const char* format, double value) {
  char text[64];
  (void)std::snprintf(text, sizeof text, format, value);
  return text;
}

std::string quantity(const std::string& task, double value) {
  if (task == memoryTask) return printed("%.0f KB", value);
  static const std::pair<double, const char*> units[] = {{1, "s"}, {1e-3, "ms"}, {1e-6, "us"}};
  for (const auto& [scale, unit] : units) {
    if (value >= scale) return printed("%.3g ", value / scale) + unit;
  }
  return printed("%.3g ns", value / 1e-9);
}

}  // namespace

void Table::addSample(const std::string& name, double value) { cells_[name].samples.push_back(value); }

bool Table::hasSamples(const std::string& name) const {
  const auto found = cells_.find(name);
  return found != cells_.end() && !found->second.samples.empty();
}

void Table::addFailure(const std::string& name, const std::string& reason) { cells_[name].failure = reason; }

const Table::Cell* Table::find(const std::string& task, const std::string& implementation,
                               const std::string& input) const {
  const auto found = cells_.find(task + "/" + implementation + "/" + input);
  return found == cells_.end() ? nullptr : &found->second;
}

std::string Table::render(const std::vector<std::string>& tasks, const std::vector<std::string>& inputs) const {
  using Row = std::vector<std::string>;
  std::vector<Row> rows = {
      {"task", "input", "Xerces", "paxorel", "paxorel/Xerces", "pugixml/Xerces", "libxml2/Xerces", "note"}};
  const auto value = [](const Cell* cell) -> std::optional<double> {
    if (!cell || !cell->failure.empty() || cell->samples.empty()) return std::nullopt;
    return median(cell->samples);
  };
  for (const std::string& task : tasks) {
    for (const std::string& input : inputs) {
      const Cell* xerces = find(task, "xerces", input);
      std::string note;
      // A cell that ran shows its value; one that failed shows "n/a" and
      // adds its reason to the note.
      const auto shown = [&](const Cell* cell, auto format) -> std::string {
        if (!cell) return "";
        if (!cell->failure.empty() && note.find(cell->failure) == std::string::npos) {
          note += (note.empty() ? "" : "; ") + cell->failure;
        }
        const std::optional<double> own = value(cell);
        return own ? format(*own) : "n/a";
      };
      const auto amount = [&](double own) { return quantity(task, own); };
      const auto ratio = [&](double own) {
        const std::optional<double> base = value(xerces);
        if (!base || *base <= 0) return std::string("n/a");
        return printed(own / *base < 100 ? "%.3g" : "%.0f", own / *base);
      };
      Row row = {task, input, shown(xerces, amount), shown(find(task, "paxorel", input), amount)};
      bool any = xerces != nullptr;
      for (const char* compared : {"paxorel", "pugixml", "libxml2"}) {
        const Cell* cell = find(task, compared, input);
        any = any || cell;
        row.push_back(shown(cell, ratio));
      }
      row.push_back(note);
      if (any) rows.push_back(row);
    }
  }

  std::vector<std::size_t> widths(rows[0].size());
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  std::ostringstream out;
  for (const Row& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      // Task, input and note read from the left; the numbers line up on the right.
      const bool text = i < 2 || i + 1 == row.size();
      const std::string padding(widths[i] - row[i].size(), ' ');
      line += (i ? "  " : "") + (text ? row[i] + padding : padding + row[i]);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
  }
  return out.str();
}

}  // namespace bench
