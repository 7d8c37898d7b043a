// The registry is a matter of one platform, and so are its tests.
#ifdef _WIN32

#include "store/modRegistry.h"

#include <gtest/gtest.h>
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <memory>
#include <random>

#include "store/modCfg.h"
#include "store/modReg.h"
#include "store/modUserStore.h"
#include "support/CollectedMessages.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

using test::CollectedMessages;
using test::TemporaryFolder;
using Texts = std::vector<std::string>;

constexpr std::string_view App = "Tarnwick", Section = "Settings";
constexpr wchar_t SettingsPath[] = L"Software\\Tarnwick\\Settings";

/// While it lives, this process sees an empty registry in place of the user's own: no test may change that
/// one.
class EmptyRegistry {
 public:
  EmptyRegistry() {
    path_ = L"Software\\tarnwick-test-" + std::to_wstring(std::random_device()());
    RegCreateKeyExW(HKEY_CURRENT_USER, path_.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &root_,
                    nullptr);
    made_ = root_ != nullptr && RegOverridePredefKey(HKEY_CURRENT_USER, root_) == ERROR_SUCCESS;
  }
  EmptyRegistry(const EmptyRegistry&) = delete;
  EmptyRegistry& operator=(const EmptyRegistry&) = delete;
  ~EmptyRegistry() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(root_);
    RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str());
  }

  [[nodiscard]] bool Made() const { return made_; }

 private:
  std::wstring path_;
  HKEY root_ = nullptr;
  bool made_ = false;
};

/// What another program puts into the section, of any type.
void Put(const wchar_t* name, DWORD type, const void* bytes, std::size_t size) {
  ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, SettingsPath, name, type, bytes, static_cast<DWORD>(size)),
            ERROR_SUCCESS);
}

/// What another program finds there: the type of a value, and its bytes as text units.
struct Stored {
  DWORD Type = REG_NONE;
  std::wstring Units;
};
Stored Find(const wchar_t* name) {
  Stored found;
  DWORD size = 0;
  RegGetValueW(HKEY_CURRENT_USER, SettingsPath, name, RRF_RT_ANY, &found.Type, nullptr, &size);
  found.Units.resize(size / sizeof(wchar_t));
  RegGetValueW(HKEY_CURRENT_USER, SettingsPath, name, RRF_RT_ANY, nullptr, found.Units.data(), &size);
  return found;
}

std::string Repeated(std::string_view text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

class InTheRegistry : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(registry_.Made()); }

  void Set(std::string_view name, std::string_view value) {
    EXPECT_FALSE(store_.SetValue(App, Section, name, value));
  }
  std::string Get(std::string_view name) { return store_.GetValue(App, Section, name); }

  EmptyRegistry registry_;
  WindowsRegistry store_;
  CollectedMessages say_;
};

// ---- the store

TEST_F(InTheRegistry, ThereIsNothingAtFirst) {
  EXPECT_FALSE(store_.KeyExists(App, Section));
  EXPECT_EQ(Get("City"), "");
  EXPECT_FALSE(store_.KeyExists(App, Section)) << "asking makes nothing";
}

TEST_F(InTheRegistry, ASectionIsMadeWithWhatItLiesIn) {
  EXPECT_FALSE(store_.CreateKey("Tarnwick\\Deeper", "Settings"));
  EXPECT_TRUE(store_.KeyExists("Tarnwick\\Deeper", "Settings"));
  EXPECT_TRUE(store_.KeyExists("Tarnwick", "Deeper"));
  EXPECT_FALSE(store_.KeyExists("Tarnwick", "Settings"));
}

TEST_F(InTheRegistry, ASectionThatIsThereKeepsItsValues) {
  EXPECT_FALSE(store_.CreateKey(App, Section));
  Set("City", "Oak Town");
  EXPECT_FALSE(store_.CreateKey(App, Section));
  EXPECT_EQ(Get("City"), "Oak Town");
}

TEST_F(InTheRegistry, AValueNeedsItsSection) {
  const std::error_code failed = store_.SetValue(App, Section, "City", "Oak Town");
  EXPECT_EQ(failed.value(), ERROR_FILE_NOT_FOUND);
  EXPECT_FALSE(store_.KeyExists(App, Section));
}

TEST_F(InTheRegistry, AValueComesBackAsItWas) {
  ASSERT_FALSE(store_.CreateKey(App, Section));
  for (const std::string& value :
       {std::string(" .125"), std::string("  blanks at both ends  "), std::string("a=b;\"c\"\\%PATH%\r\n"),
        std::string(), std::string("Weiß-Ø 木工 \xF0\x9F\xAA\x9A"), std::string(5000, 'x')}) {
    Set("City", value);
    EXPECT_EQ(Get("City"), value);
  }
  EXPECT_EQ(Get("Country"), "") << "which was never set";
}

TEST_F(InTheRegistry, ANameMayBeInAnyScript) {
  ASSERT_FALSE(store_.CreateKey("Tarnwick Säge", "木"));
  EXPECT_TRUE(store_.KeyExists("Tarnwick Säge", "木"));
  EXPECT_FALSE(store_.SetValue("Tarnwick Säge", "木", "Größe", "1"));
  EXPECT_EQ(store_.GetValue("Tarnwick Säge", "木", "Größe"), "1");
}

TEST_F(InTheRegistry, AValueReplacesTheOneBeforeIt) {
  ASSERT_FALSE(store_.CreateKey(App, Section));
  Set("City", "a longer text than the next one");
  Set("City", "Oak Town");
  EXPECT_EQ(Get("City"), "Oak Town");
  Set("City", "");
  EXPECT_EQ(Get("City"), "");
  EXPECT_EQ(Find(L"City").Type, DWORD{REG_SZ}) << "empty, and still there";
}

TEST_F(InTheRegistry, OtherProgramsFindPlainTextWithItsEnd) {
  ASSERT_FALSE(store_.CreateKey(App, Section));
  Set("City", "Weiß");
  const Stored found = Find(L"City");
  EXPECT_EQ(found.Type, DWORD{REG_SZ});
  EXPECT_EQ(found.Units, std::wstring(L"Wei\u00DF") + L'\0');
}

TEST_F(InTheRegistry, AValueThatIsNoTextReadsAsEmpty) {
  ASSERT_FALSE(store_.CreateKey(App, Section));
  const DWORD number = 7;
  Put(L"DecimalPlaces", REG_DWORD, &number, sizeof number);
  Put(L"City", REG_BINARY, L"Oak Town", sizeof L"Oak Town");
  Put(L"Country", REG_MULTI_SZ, L"Canada\0", sizeof L"Canada\0");
  EXPECT_EQ(Get("DecimalPlaces"), "");
  EXPECT_EQ(Get("City"), "");
  EXPECT_EQ(Get("Country"), "");
  Set("DecimalPlaces", " 5");
  EXPECT_EQ(Get("DecimalPlaces"), " 5");
}

TEST_F(InTheRegistry, ATextEndsWhereItsBytesEnd) {
  ASSERT_FALSE(store_.CreateKey(App, Section));
  Put(L"City", REG_SZ, L"Oak Town", 3 * sizeof(wchar_t));  // without a zero of its own
  EXPECT_EQ(Get("City"), "Oak");
  Put(L"City", REG_SZ, L"Oak\0Town", sizeof L"Oak\0Town");
  EXPECT_EQ(Get("City"), "Oak");
  Put(L"City", REG_SZ, L"", 0);
  EXPECT_EQ(Get("City"), "");
}

TEST_F(InTheRegistry, TheNumberOfAFailureIsThePlatformsOwn) {
  const std::string tooLong(300, 'x');  // a name of a key has 255 characters at most
  const std::error_code failed = store_.CreateKey(App, tooLong);
  EXPECT_NE(failed.value(), 0);
  EXPECT_EQ(failed.category(), std::system_category());
  EXPECT_FALSE(store_.KeyExists(App, tooLong));
}

TEST_F(InTheRegistry, ThereIsNothingToPutToRest) { EXPECT_FALSE(store_.Finish(App, Section)); }

TEST_F(InTheRegistry, TheUsersSettingsLie) {
  const std::unique_ptr<SettingsStore> store = UserSettingsStore();
  EXPECT_FALSE(store->KeyExists(App, Section));
  ASSERT_FALSE(store->CreateKey(App, Section));
  EXPECT_FALSE(store->SetValue(App, Section, "City", "Oak Town"));
  EXPECT_EQ(Find(L"City").Units, std::wstring(L"Oak Town") + L'\0');
}

// ---- through the layers above it

TEST_F(InTheRegistry, ValuesAreReadUpTo255Characters) {
  const Registry settings(store_, Section);
  for (const char* letter : {"x", "ß", "木"}) {
    EXPECT_TRUE(settings.SetValue("City", Repeated(letter, 255), say_));
    EXPECT_EQ(settings.GetValue("City"), Repeated(letter, 255));
    EXPECT_TRUE(settings.SetValue("City", Repeated(letter, 256), say_));
    EXPECT_EQ(settings.GetValue("City"), Repeated(letter, 255));
  }
  EXPECT_EQ(say_.Texts(), Texts{});
}

TEST_F(InTheRegistry, TheFirstValueMakesItsSection) {
  const Registry settings(store_, Section);
  EXPECT_FALSE(settings.KeyExists());
  EXPECT_TRUE(settings.SetValue("City", "Oak Town", say_));
  EXPECT_TRUE(settings.KeyExists());
  EXPECT_TRUE(settings.Finish(say_));
  EXPECT_EQ(say_.Texts(), Texts{});
}

TEST_F(InTheRegistry, AFailureIsShownWithItsNumber) {
  const std::string tooLong(300, 'x');
  EXPECT_FALSE(Registry(store_, tooLong).SetValue("City", "Oak Town", say_));
  const int number = store_.CreateKey(App, tooLong).value();
  EXPECT_EQ(say_.Texts(), Texts{"Error " + std::to_string(number)});
}

TEST_F(InTheRegistry, AConfigurationComesBackWhole) {
  const TemporaryFolder documents;
  Config saved;
  DefaultConfig(saved, documents.Path().string());
  saved.Display.SawLineColor = Rgb(1, 2, 255);
  saved.Display.DisplayScale = 1.0625;
  saved.Calculation.DecimalPlaces = 7;
  saved.Calculation.MemorySize = 500000;
  saved.Recent = {{"C:\\Säge\\", "größer.bsw"}, {"C:\\", "b c.bsw"}};
  saved.Customer = {"Weiß & Söhne", "1 Mill Lane", "Oak Town", "BC",         "Canada",
                    "V0V 0V0",      "1",           "2",        "a@b.example"};
  saved.PrintPowerReq = true;
  saved.QuickClick = false;
  saved.GulletFeedIndex = 0.55;
  ASSERT_TRUE(SaveConfig(saved, store_, say_));
  EXPECT_EQ(say_.Texts(), Texts{});

  Config loaded;
  ASSERT_TRUE(LoadConfig(loaded, store_, documents.Path().string()));
  EXPECT_EQ(loaded.Display.SawLineColor, saved.Display.SawLineColor);
  EXPECT_EQ(loaded.Display.ZoomWindowColor, saved.Display.ZoomWindowColor);
  EXPECT_EQ(loaded.Display.DisplayScale, 1.0625);
  EXPECT_EQ(loaded.Calculation.DecimalPlaces, 7);
  EXPECT_EQ(loaded.Calculation.MemorySize, 500000);
  EXPECT_EQ(loaded.CurrentSawDir, documents.Path().string() + "\\Tarnwick\\Bandsaws\\");
  EXPECT_EQ(loaded.Recent, saved.Recent);
  EXPECT_EQ(loaded.Customer, saved.Customer);
  EXPECT_TRUE(loaded.PrintPowerReq);
  EXPECT_FALSE(loaded.QuickClick);
  EXPECT_EQ(loaded.GulletFeedIndex, 0.55);
}

TEST_F(InTheRegistry, ABrokenConfigurationIsMended) {
  ASSERT_FALSE(store_.CreateKey(App, Section));
  const DWORD number = 7;
  Put(L"DecimalPlaces", REG_DWORD, &number, sizeof number);
  Set("DisplayPlaces", " 4");
  Config config;
  ASSERT_TRUE(ReadConfig(config, store_));
  EXPECT_EQ(config.Calculation.DecimalPlaces, 5) << "no text, so out of range";
  EXPECT_EQ(config.Calculation.DisplayPlaces, 4);
}

TEST_F(InTheRegistry, ThereAreDefaultsWithoutAConfiguration) {
  Config config;
  ASSERT_TRUE(ReadConfig(config, store_));
  EXPECT_EQ(config.Calculation.DecimalPlaces, 5);
  EXPECT_EQ(config.Display.ZoomWindowColor, Rgb(0, 0, 255));
  EXPECT_FALSE(store_.KeyExists(App, Section));
}

}  // namespace
}  // namespace tarnwick

#endif
