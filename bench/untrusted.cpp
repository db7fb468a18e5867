// What each attack file does to a parse under Xerces's defaults and under
// the profiles for untrusted input: the outcome, the growth of the peak
// resident memory, and the time, each parse in a process of its own under a
// memory cap and a time limit. Prints the table of README's "Parsing
// untrusted input" (./dev attacks). http: identifiers name a loopback port
// that this program holds and never listens on: nothing leaves the machine.
#include "support/LoopbackPort.hpp"
#include "support/attacks.hpp"

#include <paxorel/xml.hpp>

#include <basis/text/utf.hpp>

#include <poll.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

using namespace paxorel::xml;
namespace attacks = testing_support::attacks;

namespace {

constexpr rlim_t memoryCap = 6ULL << 30;  // bytes of address space a parse may take
constexpr double timeLimit = 60;            // seconds a parse may take
constexpr int repetitions = 5;
const std::string stopped = "stopped";  // the outcome of a parse still running at the time limit

struct Profile {
  const char* name;
  void (*apply)(ParserConfiguration&);
};

const Profile profiles[] = {
    {"Xerces's defaults", [](ParserConfiguration&) {}},
    {"The host's options", [](ParserConfiguration& options) {
       options.setDisableDefaultEntityResolution(true);
       options.setLoadExternalDTD(false);
     }},
    {"Safe profile", [](ParserConfiguration& options) { attacks::applySafeProfile(options, 1000); }},
    {"`DisallowDoctype`", [](ParserConfiguration& options) { options.setDisallowDoctype(true); }},
};

// A document, parsed from its path or, when `asText`, from its text.
struct Attack {
  std::string name;
  std::string path;
  bool asText;
};

// One parse: what came of it, how much the peak resident set grew, how long it took.
struct Measurement {
  std::string outcome;
  double megabytes = 0;
  double seconds = 0;
};

// The peak resident set of a process so far, in kilobytes; 0 once it has ended.
long peakResidentKilobytes(const std::string& process = "self") {
  std::ifstream status("/proc/" + process + "/status");
  const std::string field = "VmHWM:";
  for (std::string line; std::getline(status, line);) {
    if (line.rfind(field, 0) == 0) return std::stol(line.substr(field.size()));
  }
  return 0;
}

std::string contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// A failure's message, put short.
std::string summary(const std::string& message) {
  const std::pair<const char*, const char*> known[] = {
      {"entity expansions", "refused: expansion limit"},
      {"unable to open", "refused: not resolved"},
      {"unable to connect socket", "fetch tried"},
      {"recursive entity", "refused: recursion"},
      {"invalid document structure", "refused: doctype"},
  };
  for (const auto& [fragment, said] : known) {
    if (message.find(fragment) != std::string::npos) return said;
  }
  return "refused: " + message;
}

// What a parsed document holds: its root's text when that is short.
std::string described(const Document& document) {
  const std::unique_ptr<Element> root(document.getDocumentElement());
  const std::string content = basis::text::to_utf8(root->getTextContent());
  if (content.empty() || content.size() > 20) return "parses";
  return "parses: \"" + content + "\"";
}

// The child's side: parses once and reports on one line.
std::string parseOnce(const Attack& attack, const Profile& profile) {
  const Parser parser;
  profile.apply(*std::unique_ptr<ParserConfiguration>(parser.getConfiguration()));
  const std::string text = attack.asText ? contents(attack.path) : std::string();
  const long before = peakResidentKilobytes();
  const auto start = std::chrono::steady_clock::now();
  std::shared_ptr<Document> document;
  std::string outcome;
  try {
    document = DocumentRegistry::shareWithCaller(attack.asText ? parser.parseString(basis::text::from_utf8(text))
                                                               : parser.parseURI(basis::text::from_utf8(attack.path)));
  } catch (const basis::except::IMsgIDException& e) {
    outcome = summary(e.what());
  } catch (...) {
    outcome = "fails: out of memory";
  }
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  const double megabytes = static_cast<double>(peakResidentKilobytes() - before) / 1024;
  std::ostringstream line;
  line << megabytes << ' ' << seconds << ' ' << (document ? described(*document) : outcome);
  return line.str();
}

// The parent's side: one parse in a fresh process under the cap. One that
// runs past the time limit is stopped, and its peak so far is what counts.
Measurement measureOnce(const Attack& attack, const Profile& profile) {
  int pipe[2];
  if (::pipe(pipe) != 0) throw std::runtime_error("pipe");
  std::cout.flush();
  const pid_t child = fork();
  if (child == 0) {
    ::close(pipe[0]);
    const rlimit cap{memoryCap, memoryCap};
    setrlimit(RLIMIT_AS, &cap);
    const std::string line = parseOnce(attack, profile);
    static_cast<void>(::write(pipe[1], line.data(), line.size()));
    _exit(0);
  }
  ::close(pipe[1]);
  const auto start = std::chrono::steady_clock::now();
  const auto elapsed = [start] { return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(); };
  std::string output;
  long peak = 0;
  bool killed = false;
  for (pollfd reply{pipe[0], POLLIN, 0};;) {
    if (::poll(&reply, 1, 100) == 0) {
      peak = std::max(peak, peakResidentKilobytes(std::to_string(child)));
      if (elapsed() > timeLimit) {
        killed = ::kill(child, SIGKILL) == 0;
        break;
      }
      continue;
    }
    char buffer[512];
    const ssize_t got = ::read(pipe[0], buffer, sizeof buffer);
    if (got <= 0) break;
    output.append(buffer, got);
  }
  ::close(pipe[0]);
  int status = 0;
  waitpid(child, &status, 0);
  Measurement measured;
  std::istringstream line(output);
  if (!killed && line >> measured.megabytes >> measured.seconds && std::getline(line >> std::ws, measured.outcome)) {
    return measured;
  }
  measured.seconds = elapsed();
  measured.megabytes = static_cast<double>(peak) / 1024;
  measured.outcome = killed ? stopped : "crashed";
  return measured;
}

// The median of the repetitions; a single run when the first takes a second or more.
Measurement measure(const Attack& attack, const Profile& profile) {
  std::vector<Measurement> runs{measureOnce(attack, profile)};
  runs.reserve(repetitions);
  while (runs.front().seconds < 1 && runs.size() < repetitions) runs.push_back(measureOnce(attack, profile));
  const auto median = [&runs](double Measurement::*field) {
    std::sort(runs.begin(), runs.end(), [field](const auto& a, const auto& b) { return a.*field < b.*field; });
    return runs[runs.size() / 2];
  };
  Measurement result = median(&Measurement::seconds);
  result.megabytes = median(&Measurement::megabytes).megabytes;
  return result;
}

std::string fixed(double value, int decimals) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(decimals) << value;
  return text.str();
}

std::string cell(const Measurement& measured) {
  const double ms = measured.seconds * 1000;
  const std::string time = ms < 10       ? fixed(ms, 2) + " ms"
                           : ms < 10'000 ? fixed(ms, 0) + " ms"
                                         : fixed(measured.seconds, 0) + " s";
  const std::string memory = measured.megabytes >= 1024 ? fixed(measured.megabytes / 1024, 1) + " GB"
                                                        : fixed(measured.megabytes, 1) + " MB";
  if (measured.outcome == stopped) return "stopped at " + memory + ", " + time;
  return measured.outcome + "; " + memory + ", " + time;
}

std::string kilobytes(const std::string& path) {
  return fixed(static_cast<double>(std::filesystem::file_size(path)) / 1024, 1) + " KB";
}

// Measures every attack whose name holds `only`, and prints the table.
void run(const std::string& only) {
  namespace fs = std::filesystem;
  const std::string kept = PAXOREL_TEST_ATTACKS;
  const fs::path made = fs::temp_directory_path() / ("paxorel-attacks-" + std::to_string(getpid()));
  fs::create_directories(made);
  const auto write = [&made](const std::string& name, const std::string& text) {
    std::ofstream((made / name).string(), std::ios::binary) << text;
    return (made / name).string();
  };
  const testing_support::LoopbackPort refusing(false);
  const std::string secret = kept + "/secret.txt";
  const std::vector<Attack> list = {
      {"billion laughs", kept + "/billion_laughs.xml", false},
      {"quadratic blowup", write("quadratic.xml", attacks::quadraticBlowup()), false},
      {"quadratic blowup within a limit of 1,000", write("quadratic_1000.xml", attacks::quadraticBlowup(100'000, 1000)),
       false},
      {"laughs in an attribute default", kept + "/attribute_default_laughs.xml", false},
      {"recursive entities", kept + "/recursive_entities.xml", false},
      {"XXE, absolute path", write("absolute.xml", attacks::externalEntity(secret)), false},
      {"XXE, relative to the document", kept + "/xxe_relative.xml", false},
      {"XXE, relative to the working directory (parseString)",
       write("relative.xml", attacks::externalEntity(fs::relative(secret).string())), true},
      {"XXE, parameter entity", kept + "/xxe_parameter.xml", false},
      {"external DTD over http", write("http_dtd.xml", attacks::externalDtd(refusing.url("/r.dtd"))), false},
      {"external entity over http", write("http_entity.xml", attacks::externalEntity(refusing.url("/secret"))), false},
      {"ordinary: internal subset", kept + "/internal_subset.xml", false},
      {"ordinary: local external DTD", kept + "/external_dtd.xml", false},
  };
  std::cout << "| Attack | Size |";
  for (const Profile& profile : profiles) std::cout << ' ' << profile.name << " |";
  std::cout << "\n|---|---|";
  for (std::size_t i = 0; i < std::size(profiles); ++i) std::cout << "---|";
  std::cout << '\n';
  for (const Attack& attack : list) {
    if (attack.name.find(only) == std::string::npos) continue;
    std::cout << "| " << attack.name << " | " << kilobytes(attack.path) << " |";
    for (const Profile& profile : profiles) std::cout << ' ' << cell(measure(attack, profile)) << " |" << std::flush;
    std::cout << '\n';
  }
  fs::remove_all(made);
}

}  // namespace

// With an argument, only the attacks whose names hold it.
int main(int argc, char** argv) {
  try {
    run(argc > 1 ? argv[1] : "");
    return 0;
  } catch (const std::exception& e) {
    std::cerr << "paxorel_untrusted: " << e.what() << '\n';
    return 1;
  }
}
