// All property cards against their rules taken one after the other on a string: on random cards, and on cards cut at every byte or with any
// byte changed. Nothing of the text changes, and no cursor passes its end.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "deck/card_boundaries.h"
#include "deck/columns.h"
#include "deck/plain_fields.h"
#include "properties/property_cards_fixture.h"
#include "support/hash_keys.h"

namespace btz {
namespace {

using test::Large;
using test::PropertyCardText;
using test::Small;

/// A card read by its rules, into a text that tells all of it.
class PlainCard {
 public:
  explicit PlainCard(const std::string& deck) : content(deck) { shown.precision(17); }

  std::string Shell() {
    Start("PSHELL*");
    Integers(2);
    const Marked values = Walk(6);
    shown << " T " << values.numbers[0] << " MID2 " << TruncateToInt(values.numbers[1]) << " 12I/T3 " << values.numbers[2] << " MID3 "
          << TruncateToInt(values.numbers[3]) << " TS/T " << values.numbers[4] << " NSM " << values.numbers[5] << " blank "
          << values.blanks[0];
    return Result();
  }

  std::string Solid() {
    Start("PSOLID*");
    Integers(3);
    return Result();
  }

  std::string Gasket() {
    Start("PGASK*");
    Integers(4);
    const Marked values = Walk(4);
    for (std::size_t i = 0; i < 4; ++i) {
      shown << ' ' << values.numbers[i] << (values.blanks[i] == 0 ? " present" : " blank");
    }
    return Result();
  }

  std::string Beam() {
    const std::string keyword = Lower(test::PlainField(content, 0, 8));
    const bool isBeam = keyword == "pbeam" || keyword == "pbeam*" || keyword == "pbeaml" || keyword == "pbeaml*";
    const bool isLibrary = keyword == "pbarl" || keyword == "pbarl*" || keyword == "pbeaml" || keyword == "pbeaml*";
    shown << "beam " << isBeam << " library " << isLibrary;
    for (const char* large : {"PBAR*", "PBARL*", "PBEAM*"}) {
      Start(large);
    }
    Start("PBEAML*");
    Integers(2);
    if (isLibrary) {
      Library();
    } else {
      Section(isBeam);
    }
    return Result();
  }

 private:
  struct Marked {
    std::vector<double> numbers;
    std::vector<int> blanks;
  };

  static std::string Lower(std::string text) {
    for (char& c : text) {
      c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    }
    return text;
  }

  void Start(const std::string& large) {
    width = content.compare(0, large.size(), large) == 0 ? 16 : width;
    place = std::min<std::size_t>(8, content.find('\0') == std::string::npos ? content.size() : content.find('\0'));
  }

  void Integers(int count) {
    for (int i = 0; i < count; ++i) {
      shown << ' ' << test::PlainInteger(content, &place, width);
    }
  }

  /// What the tests say of the field at the place.
  void Look() {
    field = test::PlainField(content, place, static_cast<std::size_t>(width));
    zero = test::PlainDecimal(field) == 0.0;
    star = field.find('*') != std::string::npos;
  }

  bool AtEnd() const { return test::PlainAt(content, place) == 0; }

  Marked Walk(std::size_t count) {
    Marked values{std::vector<double>(count, 0.0), std::vector<int>(count, 0)};
    for (std::size_t i = 0; i < count;) {
      Look();
      if (test::PlainMark(field) && zero) {
        test::PlainSkip(content, &place, width);
      } else if (star && zero) {
        if (IsCardKeyword(field.c_str())) {
          return values;
        }
        test::PlainSkip(content, &place, 8);
      } else if (test::PlainText(field) && zero) {
        return values;
      } else {
        values.blanks[i] = field.empty() ? 1 : 0;
        values.numbers[i] = test::PlainReal(content, &place, width);
        ++i;
      }
    }
    return values;
  }

  void Section(bool isBeam) {
    Marked values{std::vector<double>(16, 0.0), std::vector<int>(16, 1)};
    bool markSeen = false;
    for (std::size_t i = 0; i < 16;) {
      Look();
      if (test::PlainMark(field) && zero) {
        markSeen = true;
        test::PlainSkip(content, &place, width);
        continue;
      }
      if (field.empty() && ((i == 5 && !isBeam) || (i == 13 && !markSeen))) {
        if (AtEnd()) {
          break;
        }
        test::PlainSkip(content, &place, width);
        continue;
      }
      values.blanks[i] = field.empty() ? 1 : 0;
      if (star && zero) {
        if (IsCardKeyword(field.c_str())) {
          break;
        }
        test::PlainSkip(content, &place, 8);
        continue;
      }
      if (test::PlainText(field) && zero) {
        values.blanks[i] = 1;
        break;
      }
      values.numbers[i] = test::PlainReal(content, &place, width);
      ++i;
    }
    const char* const bar[] = {"A", "I1", "I2", "J", "NSM", "C1", "C2", "D1", "D2", "E1", "E2", "F1", "F2", "K1", "K2", "I12"};
    const char* const beam[] = {"A", "I1", "I2", "I12", "J", "NSM", "C1", "C2", "D1", "D2", "E1", "E2", "F1", "F2", "K1", "K2"};
    for (const char* name : bar) {
      for (std::size_t i = 0; i < 16; ++i) {
        if (std::string(isBeam ? beam[i] : bar[i]) == name) {
          shown << ' ' << name << ' ' << values.numbers[i] << (values.blanks[i] == 0 ? "" : " blank");
        }
      }
    }
    shown << " section 0 0";
  }

  void Library() {
    for (std::int32_t i = 0; i < width && !AtEnd(); ++i) {
      ++place;
    }
    double values[3] = {0.0, 0.0, 0.0};
    int sectionClass = 0;
    for (int count = 0; count < 3;) {
      Look();
      if (test::PlainMark(field) && zero) {
        test::PlainSkip(content, &place, width);
        continue;
      }
      if (star && zero) {
        if (IsCardKeyword(field.c_str())) {
          break;
        }
        test::PlainSkip(content, &place, 8);
        continue;
      }
      if (field.empty()) {
        if (AtEnd()) {
          break;
        }
        test::PlainSkip(content, &place, width);
        continue;
      }
      if (test::PlainText(field)) {
        const std::string three = field.substr(0, 3);
        const bool round = three == "ROD";
        if (round || field.substr(0, 4) == "TUBE" || three == "BAR" || three == "BOX" || three == "CHA") {
          sectionClass = round ? 2 : 1;
          test::PlainSkip(content, &place, width);
          continue;
        }
        if (zero) {
          break;
        }
      }
      values[count++] = test::PlainReal(content, &place, width);
    }
    const double second = sectionClass == 1 ? values[1] : 0.0;
    const double mass = sectionClass == 1 ? values[2] : sectionClass == 2 ? values[1] : 0.0;
    for (const char* name : {"A", "I1", "I2", "J"}) {
      shown << ' ' << name << " 0 blank";
    }
    shown << " NSM " << mass << " blank";
    for (const char* name : {"C1", "C2", "D1", "D2", "E1", "E2", "F1", "F2", "K1", "K2", "I12"}) {
      shown << ' ' << name << " 0 blank";
    }
    shown << " section " << values[0] << ' ' << second;
  }

  std::string Result() {
    shown << " place " << place;
    return shown.str();
  }

  const std::string content;
  std::size_t place = 0;
  std::int32_t width = 8;
  std::string field;
  bool zero = false;
  bool star = false;
  std::ostringstream shown;
};

void Show(std::ostringstream& shown, const PshellRecord& record) {
  shown << ' ' << record.propertyId << ' ' << record.materialId << " T " << record.thickness << " MID2 " << record.bendingMaterialId
        << " 12I/T3 " << record.bendingRatio << " MID3 " << record.shearMaterialId << " TS/T " << record.shearRatio << " NSM "
        << record.nonStructuralMass << " blank " << int{record.thicknessBlank};
}

void Show(std::ostringstream& shown, const PsolidRecord& record) {
  shown << ' ' << record.propertyId << ' ' << record.materialId << ' ' << record.coordinateSystemId;
}

void Show(std::ostringstream& shown, const PgaskRecord& record) {
  const auto add = [&](double value, std::uint8_t present) { shown << ' ' << value << (present == 1 ? " present" : " blank"); };
  shown << ' ' << record.propertyId << ' ' << record.materialId << ' ' << record.membraneMaterialId << ' ' << record.reservedId;
  add(record.thickness, record.thicknessPresent);
  add(record.gap, record.gapPresent);
  add(record.voidValue, record.voidPresent);
  add(record.leakagePressure, record.leakagePressurePresent);
  shown << (record.stabilizationOn == 0 ? "" : " stabilized");
}

void Show(std::ostringstream& shown, const BeamPropertyRecord& record) {
  shown << "beam " << record.isBeam << " library " << record.isSectionLibrary << ' ' << record.propertyId << ' ' << record.materialId;
  const auto add = [&](const char* name, double value, BeamValue mark) {
    shown << ' ' << name << ' ' << value << (record.blank[mark] == 0 ? "" : " blank");
  };
  add("A", record.area, beamArea);
  add("I1", record.i1, beamI1);
  add("I2", record.i2, beamI2);
  add("J", record.torsion, beamTorsion);
  add("NSM", record.nonStructuralMass, beamNonStructuralMass);
  add("C1", record.c1, beamC1);
  add("C2", record.c2, beamC2);
  add("D1", record.d1, beamD1);
  add("D2", record.d2, beamD2);
  add("E1", record.e1, beamE1);
  add("E2", record.e2, beamE2);
  add("F1", record.f1, beamF1);
  add("F2", record.f2, beamF2);
  add("K1", record.k1, beamK1);
  add("K2", record.k2, beamK2);
  add("I12", record.i12, beamI12);
  shown << " section " << record.sectionDim1 << ' ' << record.sectionDim2;
}

class CapturedCards : public test::NameTablesTest {
 protected:
  void ExpectByTheRules(const std::string& content) {
    ExpectShown<PshellRecord>(content, ReadPshellCard, PlainCard(content).Shell());
    ExpectShown<PsolidRecord>(content, ReadPsolidCard, PlainCard(content).Solid());
    ExpectShown<PgaskRecord>(content, ReadPgaskCard, PlainCard(content).Gasket());
    ExpectShown<BeamPropertyRecord>(content, ReadBeamPropertyCard, PlainCard(content).Beam());
  }

 private:
  template <typename Record>
  void ExpectShown(const std::string& content, void (*reader)(CardCursor*, IndexedList*), const std::string& expected) {
    PropertyCardText text("", content);
    IndexedList list;
    IndexedListInit(&list);
    reader(&text.cursor, &list);
    ASSERT_EQ(list.size, 1);
    auto* record = static_cast<Record*>(list.first->record);
    std::ostringstream shown;
    shown.precision(17);
    Show(shown, *record);
    shown << " place " << text.Place();
    EXPECT_EQ(shown.str(), expected) << "\"" << content << '"';
    EXPECT_TRUE(text.IsUntouched()) << content;
    EXPECT_LE(text.Place(), content.size()) << content;
    ReleaseMemory(record);
    IndexedListClear(&list);
  }
};

template <std::size_t count>
const char* OneOf(const char* const (&texts)[count], std::mt19937& random) {
  return texts[random() % count];
}

/// A card of any keyword with its lines, in columns or cut short here and there, and what stands behind it.
std::string RandomCard(std::mt19937& random) {
  const char* const keywords[] = {"PSHELL  ", "PSHELL* ", "PSOLID  ", "PSOLID* ", "PGASK   ", "PGASK*  ", "PBAR    ",
                                  "PBAR*   ", "PBARL   ", "PBARL*  ", "PBEAM   ", "PBEAM*  ", "PBEAML  ", "PBEAML* "};
  const char* const heads[] = {"+       ", "+       ", "+A1     ", "+1      ", "        ", "*       ", "*B2     ",
                               "GRID    ", "FORCE   ", "GRID*   ", "FORCE*  ", "$ note  ", "BAROR   "};
  const char* const fields[] = {"1.0     ", "     0.5", "        ", "        ", "        ", "0.0     ",        "   1.5+3", "1.5E+3  ",
                                "1.0E5   ", "YES     ", "+A1     ", "+1      ", "*       ", "-4.5    ",        "ROD     ", "TUBE    ",
                                "BOX1    ", "CHAN    ", "BAR     ", "I       ", "2ROD    ", "0.25            "};
  const bool padded = random() % 2 == 0;
  std::string text;
  for (std::uint32_t line = 0; line < 1 + random() % 4; ++line) {
    std::string whole = line == 0 ? OneOf(keywords, random) : OneOf(heads, random);
    if (line == 0 && random() % 4 != 0) {
      whole += whole.find('*') == std::string::npos ? "7       8       " : "7               8               ";
    }
    for (std::uint32_t field = random() % 9; field > 0; --field) {
      whole += OneOf(fields, random);
    }
    if (!padded && random() % 2 == 0) {
      whole.resize(random() % (whole.size() + 1));
    }
    text += whole + (random() % 4 == 0 ? "\r\n" : "\n");
  }
  if (random() % 4 == 0) {
    text.resize(random() % (text.size() + 1));
  }
  return text;
}

TEST_F(CapturedCards, RandomCardsFollowTheRules) {
  std::mt19937 random(91);
  for (int i = 0; i < 12000; ++i) {
    ExpectByTheRules(RandomCard(random));
  }
}

const std::vector<std::string>& Samples() {
  static const std::vector<std::string> samples = {
      Small("PSHELL|11|21|0.5|22|1.25|23|0.75|0.125") + Small("+|0.1") + Small("GRID|1"),
      Large("PSHELL*|11|21|0.5|22", "*\r\n") + Large("*|1.25|23|0.75|0.125", "\r\n"),
      Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5||+A") + Small("+A|1.1|1.2|1.3|1.4|1.5|1.6|1.7|1.8") + Small("+|2.1|2.2|2.3"),
      Small("PBAR|11|21|0.1|0.2||0.4|0.5|") + Small("|1.1||1.3|1.4|1.5|1.6|1.7|1.8") + Small("||2.2|2.3") + Large("GRID*|1"),
      Small("PBEAM|11|21|0.1|0.2|0.3|0.4|0.5|0.6") + Small("+|1.1|1.2|1.3|1.4|1.5|1.6|1.7|1.8") + Small("+|YES|1.0"),
      Large("PBEAM*|11|21|0.1|0.2") + Large("*|0.3|0.4|0.5|0.6") + Large("*|1.1|1.2|1.3|1.4") + Large("*|1.5|1.6|1.7|"),
      Small("PBARL|11|21||TUBE|5.0|3.0|2.0") + Small("FORCE|7"),
      Large("PBEAML*|11|21||ROD", "*\n") + Large("*|5.0|2.0"),
      Large("PGASK*|5|6|7|8") + Large("*|0.1||0.3|0.4") + "$ end"};
  return samples;
}

TEST_F(CapturedCards, CutAtAnyByte) {
  for (const std::string& sample : Samples()) {
    for (std::size_t length = 0; length <= sample.size(); ++length) {
      ExpectByTheRules(sample.substr(0, length));
      ExpectByTheRules(sample.substr(0, length) + "\n" + sample.substr(length));
    }
  }
}

TEST_F(CapturedCards, WithAnyByteChanged) {
  for (std::string sample : Samples()) {
    for (char& byte : sample) {
      const char held = byte;
      for (const char c : {' ', '\n', '+', '*', '$', 'A', '0', '\xE9'}) {
        byte = c;
        ExpectByTheRules(sample);
      }
      byte = held;
    }
  }
}

TEST_F(CapturedCards, WithANulAnywhere) {
  for (const std::string& sample : Samples()) {
    for (std::size_t place = 0; place < sample.size(); ++place) {
      PropertyCardText text("$Name\n", sample.substr(0, place) + '\0' + sample.substr(place + 1));
      IndexedList list;
      IndexedListInit(&list);
      ReadBeamPropertyCard(&text.cursor, &list);
      EXPECT_LE(text.Place(), place) << sample;
      EXPECT_TRUE(text.IsUntouched()) << sample;
      WalkIndexedList<void>(&list, ReleaseMemory);
      IndexedListClear(&list);
    }
  }
}

}  // namespace
}  // namespace btz
