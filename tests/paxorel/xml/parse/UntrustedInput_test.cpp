// Classic attacks on an XML parser, each parsed with Xerces's defaults (what
// they do is written down here, so that a change of Xerces shows), with
// Entities off, with the profile for untrusted input that README recommends,
// and with DisallowDoctype. Attacks that would take gigabytes under the
// defaults run there in smaller sizes that show the growth. Nothing leaves
// the machine: every http: identifier names a loopback port of the test's own.
#include "support/LoopbackPort.hpp"
#include "support/attacks.hpp"
#include "support/expectations.hpp"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <filesystem>
#include <functional>

using namespace paxorel::xml;
using namespace testing_support;
using namespace testing_support::attacks;

namespace {

const std::string kept = PAXOREL_TEST_ATTACKS;  // the directory of the kept attack files

void safeProfile(ParserConfiguration& options) { applySafeProfile(options, 1000); }
void defaults(ParserConfiguration& /*options*/) {}
void entitiesOff(ParserConfiguration& options) { options.setEntities(false); }
void noDoctype(ParserConfiguration& options) { options.setDisallowDoctype(true); }

using Profile = void (*)(ParserConfiguration&);

// A document as text for parseString or as a path for parseURI.
struct Input {
  std::string text;
  std::string path;
};
Input text(std::string text) { return {std::move(text), {}}; }
Input path(std::string path) { return {{}, std::move(path)}; }

// A value, or its length when it is long.
std::string shown(const ustring& value) {
  return value.size() <= 20 ? basis::text::to_utf8(value) : std::to_string(value.size()) + " characters";
}

// What parsing `input` under `profile` gives: the root's text and attributes,
// or the failure's identifier and message.
std::string outcome(const Input& input, Profile profile) {
  const Parser parser;
  profile(*own(parser.getConfiguration()));
  try {
    const auto document = DocumentRegistry::shareWithCaller(input.path.empty() ? parser.parseString(u(input.text))
                                                                             : parser.parseURI(u(input.path)));
    const auto root = own(document->getDocumentElement());
    std::string result = shown(root->getTextContent());
    const auto attributes = own(root->getAttributes());
    for (int i = 0; i < attributes->getLength(); ++i) {
      const auto attribute = own(attributes->item(i));
      result += " @" + basis::text::to_utf8(attribute->getNodeName()) + "=" + shown(attribute->getNodeValue());
    }
    return result;
  } catch (const basis::except::IMsgIDException& e) {
    return e.GetID().substr(e.GetID().rfind(':') + 1) + ": " +
           basis::text::to_utf8(std::get<ustring>(e.GetBaseMsgIDObj().args.back()));
  }
}

// The outcome of one attack under each profile; null where the test does not
// run it (it would take gigabytes: the smaller rows show the growth).
struct Attack {
  const char* name;
  Input input;
  const char* defaults;
  const char* entitiesOff;
  const char* safeProfile;
  const char* noDoctype;
};

const std::string limited =
    "parser has encountered more than '1000' entity expansions in the document; this is the limit imposed by "
    "the application";
const std::string noDoctypeFile = "parseFileError: invalid document structure";
const std::string noDoctypeText = "parseStringError: invalid document structure";

}  // namespace

TEST(UntrustedInput, EachAttackUnderTheDefaultsEntitiesOffTheSafeProfileAndDisallowDoctype) {
  const TempDir dir;
  const LoopbackPort refusing(false);
  const std::string secret = kept + "/secret.txt";
  // parseString takes a relative system identifier from the working directory.
  const std::string relative = std::filesystem::relative(secret).string();
  const std::string httpDtd = refusing.url("/r.dtd"), httpEntity = refusing.url("/secret");
  const std::string limitedFile = "parseFileError: " + limited, limitedText = "parseStringError: " + limited;
  const std::string recursive = "parseStringError: recursive entity expansion 'lol0'";
  const auto unopened = [](const std::string& how, const std::string& id) {
    return how + ": unable to open external entity '" + id + "'";
  };
  const auto refused = [](const std::string& url) {
    return "parseStringError: unable to connect socket for URL '" + url + "'";
  };
  // Strings that outlive the table.
  const std::string
      absoluteRefused = unopened("parseFileError", secret), relativeRefused = unopened("parseStringError", relative),
      keptRefused = unopened("parseFileError", "secret.txt"),
      parameterRefused = unopened("parseFileError", "xxe_parameter.dtd"), httpDtdRefused = refused(httpDtd),
      httpEntityFetched = refused(httpEntity), httpEntityRefused = unopened("parseStringError", httpEntity);

  const Attack attacks[] = {
      {"billion laughs, 1 KB", path(kept + "/billion_laughs.xml"), nullptr, nullptr, limitedFile.c_str(),
       noDoctypeFile.c_str()},
      {"laughs, 2 levels", text(laughs(2, Reference::content)), "300 characters", "300 characters",
       "300 characters", noDoctypeText.c_str()},
      {"laughs, 3 levels", text(laughs(3, Reference::content)), "3000 characters", "3000 characters",
       limitedText.c_str(), noDoctypeText.c_str()},
      {"laughs, 4 levels", text(laughs(4, Reference::content)), "30000 characters", "30000 characters",
       limitedText.c_str(), noDoctypeText.c_str()},
      {"quadratic blowup, 103 KB", text(quadraticBlowup()), nullptr, nullptr, limitedText.c_str(),
       noDoctypeText.c_str()},
      {"quadratic blowup, 500 x 2000", text(quadraticBlowup(500, 2000)), "1000000 characters",
       "1000000 characters", limitedText.c_str(), noDoctypeText.c_str()},
      // Xerces counts no expansion in an attribute list declaration: no limit helps.
      {"laughs in an attribute default, 1 KB", path(kept + "/attribute_default_laughs.xml"), nullptr, nullptr,
       nullptr, noDoctypeFile.c_str()},
      {"laughs in an attribute default, 4 levels", text(laughs(4, Reference::attributeDefault)),
       " @laughs=30000 characters", " @laughs=30000 characters", " @laughs=30000 characters",
       noDoctypeText.c_str()},
      {"recursive entities", text("<!DOCTYPE r [<!ENTITY lol0 '&lol1;'><!ENTITY lol1 '&lol0;'>]><r>&lol0;</r>"),
       recursive.c_str(), recursive.c_str(), recursive.c_str(), noDoctypeText.c_str()},
      {"XXE, absolute path", path(dir.write("absolute.xml", externalEntity(secret))), "TOP SECRET", "TOP SECRET",
       absoluteRefused.c_str(), noDoctypeFile.c_str()},
      {"XXE, path relative to the document", path(kept + "/xxe_relative.xml"), "TOP SECRET", "TOP SECRET",
       keptRefused.c_str(), noDoctypeFile.c_str()},
      {"XXE, path relative to the working directory", text(externalEntity(relative)), "TOP SECRET", "TOP SECRET",
       relativeRefused.c_str(), noDoctypeText.c_str()},
      {"XXE, parameter entity", path(kept + "/xxe_parameter.xml"), "TOP SECRET", "TOP SECRET",
       parameterRefused.c_str(), noDoctypeFile.c_str()},
      // The DTD is not read at all under the profile, so there is nothing to fetch.
      {"external DTD over http", text(externalDtd(httpDtd)), httpDtdRefused.c_str(), httpDtdRefused.c_str(), "",
       noDoctypeText.c_str()},
      {"external entity over http", text(externalEntity(httpEntity)), httpEntityFetched.c_str(),
       httpEntityFetched.c_str(), httpEntityRefused.c_str(), noDoctypeText.c_str()},
      // Ordinary documents: the profile refuses neither; it does not read the
      // external DTD, so what that declares is missing.
      {"internal subset", path(kept + "/internal_subset.xml"), "From Ada & co. @lang=en", "From Ada & co. @lang=en",
       "From Ada & co. @lang=en", noDoctypeFile.c_str()},
      {"local external DTD", path(kept + "/external_dtd.xml"), "Hello @lang=en", "Hello @lang=en", "Hello",
       noDoctypeFile.c_str()},
  };
  const std::pair<Profile, const char* Attack::*> profiles[] = {
      {defaults, &Attack::defaults},
      {entitiesOff, &Attack::entitiesOff},
      {safeProfile, &Attack::safeProfile},
      {noDoctype, &Attack::noDoctype},
  };
  for (const Attack& attack : attacks) {
    for (const auto& [profile, expected] : profiles) {
      if (attack.*expected) {
        EXPECT_EQ(outcome(attack.input, profile), attack.*expected) << attack.name;
      }
    }
  }
}

TEST(UntrustedInput, TheSafeProfileRefusesHttpIdentifiersBeforeAnyConnection) {
  const LoopbackPort listening(true);
  for (const std::string& document : {externalEntity(listening.url("/secret")), externalDtd(listening.url("/r.dtd"))}) {
    for (const Profile profile : {safeProfile, noDoctype}) {
      outcome(text(document), profile);
      EXPECT_FALSE(listening.called()) << document;
    }
  }
  // The port is good: a client of the test's own gets through.
  const int client = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(listening.port());
  ASSERT_EQ(::connect(client, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  EXPECT_TRUE(listening.called());
  ::close(client);
}

TEST(UntrustedInput, ACallerThatTrustsADocumentReadsItsLocalDtdOnPurposeWithTheLimitKept) {
  // No resolver is at hand, so reading the DTD means resolution for the whole
  // parse: only for documents the caller trusts.
  const Parser parser;
  const auto options = own(parser.getConfiguration());
  safeProfile(*options);
  options->setDisableDefaultEntityResolution(false);
  options->setLoadExternalDTD(true);
  const auto document = DocumentRegistry::shareWithCaller(parser.parseURI(u(kept + "/external_dtd.xml")));
  EXPECT_EQ(own<Element>(document->getDocumentElement())->getAttribute(u"lang"), u"en");
  EXPECT_EQ(options->getEntityExpansionLimit(), 1000u);
  EXPECT_XML_ERROR(parser.parseString(u(laughs(3, Reference::content))), "parseStringError",
                   u(laughs(3, Reference::content)), u(limited));
}

TEST(UntrustedInput, XIncludeReadsLocalFilesWhateverTheEntityOptionsSoTheProfileSwitchesItOff) {
  const TempDir dir;
  const std::string href = std::filesystem::relative(kept + "/secret.txt", dir.dir()).string();
  const Input including = path(dir.write(
      "including.xml", "<r><xi:include xmlns:xi='http://www.w3.org/2001/XInclude' href='" + href + "' parse='text'/></r>"));
  EXPECT_EQ(outcome(including, [](ParserConfiguration& options) {
              options.setDisableDefaultEntityResolution(true);
              options.setLoadExternalDTD(false);
              options.setDoXInclude(true);
            }),
            "TOP SECRET @xmlns=");  // Xerces's inclusion leaves an empty default namespace on the root
  EXPECT_EQ(outcome(including, [](ParserConfiguration& options) {
              options.setDoXInclude(true);
              safeProfile(options);
            }),
            "");
}
