#include "paper/pdf.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "paper/characters.h"
#include "paper/deflate.h"
#include "text/numbers.h"

namespace paper {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

// In as few figures as the place on paper needs: a hundredth of a point.
void add_number(std::string& to, double value) {
  std::string written = text::format_fixed(value, 2);
  written.erase(written.find_last_not_of('0') + 1);
  if (written.ends_with('.')) written.pop_back();
  if (written == "-0") written.erase(0, 1);
  to.append(written).push_back(' ');
}

void add_hex(std::string& to, unsigned word) {
  for (int shift = 12; shift >= 0; shift -= 4)
    to.push_back(kHexDigits[(word >> static_cast<unsigned>(shift)) & 0xFU]);
}

// A character as UTF-16 with its highest byte first.
void add_utf16(std::string& to, char32_t code) {
  if (code > 0xFFFF) {
    add_hex(to, 0xD800U + ((code - 0x10000U) >> 10U));
    code = 0xDC00U + ((code - 0x10000U) & 0x3FFU);
  }
  add_hex(to, code);
}

// The glyphs of one face that the document shows, in the order in which they came.
class FaceInUse {
 public:
  explicit FaceInUse(const TrueType& face) : face_(&face) { number_of(TrueType::kNoGlyph, U' '); }

  [[nodiscard]] const TrueType& face() const { return *face_; }
  [[nodiscard]] bool is_used() const { return glyphs_.size() > 1; }
  unsigned number_of(TrueType::Glyph glyph, char32_t character) {
    const auto [found, is_new] = numbers_.emplace(glyph, static_cast<unsigned>(glyphs_.size()));
    if (is_new) {
      glyphs_.push_back(glyph);
      characters_.push_back(character);
    }
    return found->second;
  }
  [[nodiscard]] const std::vector<TrueType::Glyph>& glyphs() const { return glyphs_; }
  [[nodiscard]] const std::vector<char32_t>& characters() const { return characters_; }

 private:
  const TrueType* face_;
  std::map<TrueType::Glyph, unsigned> numbers_;
  std::vector<TrueType::Glyph> glyphs_;
  std::vector<char32_t> characters_;  ///< what each glyph stands for
};

// Objects one after the other, and where each of them begins.
class File {
 public:
  File() { bytes_ = "%PDF-1.5\n%\xE2\xE3\xCF\xD3\n"; }

  /// A number for an object that comes later.
  std::size_t reserve() {
    places_.push_back(0);
    return places_.size();
  }
  void add(std::size_t number, std::string_view content) {
    places_[number - 1] = bytes_.size();
    bytes_.append(std::to_string(number)).append(" 0 obj\n");
    bytes_.append(content).append("\nendobj\n");
  }
  std::size_t add(std::string_view content) {
    const std::size_t number = reserve();
    add(number, content);
    return number;
  }
  std::size_t add_stream(std::string_view content, std::string_view entries = {}) {
    const std::string packed = deflate(content);
    std::string object("<</Filter/FlateDecode/Length ");
    object.append(std::to_string(packed.size())).append(entries).append(">>stream\n");
    object.append(packed).append("\nendstream");
    return add(object);
  }

  [[nodiscard]] std::string end(std::size_t catalog, std::size_t information) && {
    constexpr std::size_t kDigits = 10;
    const std::size_t table = bytes_.size();
    std::string size = std::to_string(places_.size() + 1);
    bytes_.append("xref\n0 ").append(size).append("\n0000000000 65535 f \n");
    for (const std::size_t place : places_) {
      const std::string digits = std::to_string(place);
      bytes_.append(kDigits - digits.size(), '0').append(digits).append(" 00000 n \n");
    }
    bytes_.append("trailer\n<</Size ").append(size).append("/Root ");
    bytes_.append(std::to_string(catalog)).append(" 0 R/Info ");
    bytes_.append(std::to_string(information)).append(" 0 R>>\nstartxref\n");
    bytes_.append(std::to_string(table)).append("\n%%EOF\n");
    return std::move(bytes_);
  }

 private:
  std::string bytes_;
  std::vector<std::size_t> places_;  ///< of object 1, 2 …
};

std::string reference(std::size_t number) {
  std::string text = std::to_string(number);
  return text.append(" 0 R");
}

// Which character each number of a glyph stands for: what is found and copied.
std::string characters_map(const FaceInUse& used) {
  constexpr std::size_t kAtOnce = 100;
  std::string map(
      "/CIDInit/ProcSet findresource begin 12 dict begin begincmap/CIDSystemInfo"
      "<</Registry(Adobe)/Ordering(UCS)/Supplement 0>>def/CMapName/Letters def/CMapType 2 def\n"
      "1 begincodespacerange<0000><FFFF>endcodespacerange\n");
  const std::vector<char32_t>& characters = used.characters();
  for (std::size_t from = 1; from < characters.size(); from += kAtOnce) {
    const std::size_t to = std::min(from + kAtOnce, characters.size());
    map.append(std::to_string(to - from)).append(" beginbfchar\n");
    for (std::size_t i = from; i < to; ++i) {
      map.push_back('<');
      add_hex(map, static_cast<unsigned>(i));
      map.append("><");
      add_utf16(map, characters[i]);
      map.append(">\n");
    }
    map.append("endbfchar\n");
  }
  return map.append("endcmap CMapName currentdict/CMap defineresource pop end end\n");
}

std::size_t add_face(File& file, const FaceInUse& used, std::size_t index) {
  constexpr double kEm = 1000;
  const TrueType& face = used.face();
  std::string name("KAVREL+Letters");
  name.append(std::to_string(index + 1));

  const std::string letters = face.subset(used.glyphs());
  const std::string size = "/Length1 " + std::to_string(letters.size());
  const std::size_t letters_file = file.add_stream(letters, size);

  std::string about("<</Type/FontDescriptor/Flags 4/ItalicAngle 0/StemV 80/FontName/");
  about.append(name).append("/FontBBox[");
  for (const double edge : {face.left(), face.bottom(), face.right(), face.top()})
    add_number(about, edge * kEm);
  about.append("]/Ascent ");
  add_number(about, face.ascent() * kEm);
  about.append("/Descent ");
  add_number(about, -face.descent() * kEm);
  about.append("/CapHeight ");
  add_number(about, face.ascent() * kEm);
  about.append("/FontFile2 ").append(reference(letters_file)).append(">>");
  const std::size_t descriptor = file.add(about);

  std::string widths;
  for (const TrueType::Glyph glyph : used.glyphs()) add_number(widths, face.advance(glyph) * kEm);
  std::string font("<</Type/Font/Subtype/CIDFontType2/CIDToGIDMap/Identity/BaseFont/");
  font.append(name).append("/CIDSystemInfo<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>");
  font.append("/FontDescriptor ").append(reference(descriptor));
  font.append("/W[0[").append(widths).append("]]>>");
  const std::size_t descendant = file.add(font);

  const std::size_t characters = file.add_stream(characters_map(used));
  std::string whole("<</Type/Font/Subtype/Type0/Encoding/Identity-H/BaseFont/");
  whole.append(name).append("/DescendantFonts[").append(reference(descendant));
  whole.append("]/ToUnicode ").append(reference(characters)).append(">>");
  return file.add(whole);
}

class PdfCanvas : public PageCanvas {
 public:
  PdfCanvas(const ui::Sheets& sheets, const SheetSize& size, const Faces& faces)
      : size_(size), point_(kPointsOfAnInch / sheets.size.dots_per_inch) {
    for (const auto& face : faces) faces_.emplace_back(*face);
    page_tree_ = file_.reserve();
    resources_ = file_.reserve();
  }

  [[nodiscard]] std::string end(const std::string& title) && {
    end_page();
    std::string fonts("<</Font<<");
    for (std::size_t i = 0; i < faces_.size(); ++i) {
      if (!faces_[i].is_used()) continue;
      fonts.append("/F").append(std::to_string(i)).append(" ");
      fonts.append(reference(add_face(file_, faces_[i], i)));
    }
    file_.add(resources_, fonts.append(">>>>"));
    std::string tree("<</Type/Pages/Count ");
    tree.append(std::to_string(pages_.size())).append("/Kids[");
    for (const std::size_t page : pages_) tree.append(reference(page)).push_back(' ');
    file_.add(page_tree_, tree.append("]>>"));
    std::string catalog("<</Type/Catalog/Pages ");
    const std::size_t root = file_.add(catalog.append(reference(page_tree_)).append(">>"));
    std::string information("<</Title<FEFF");
    for (const Character character : characters_of(title)) add_utf16(information, character.code);
    const std::size_t about = file_.add(information.append(">>>"));
    return std::move(file_).end(root, about);
  }

  void set_letters(double dots) override { letters_ = dots; }
  [[nodiscard]] bool next_page() override {
    end_page();
    return true;
  }

  void fill(const std::vector<ui::Point>& outline, Colour colour, bool /*exact*/) override {
    if (outline.size() < 3) return;
    add_colour(colour, "rg ");
    add_path(outline);
    page_.append("f*\n");
  }
  void stroke(const std::vector<ui::Point>& line, const Pen& pen) override {
    if (line.size() < 2) return;
    add_pen(pen);
    add_path(line);
    page_.append("S\n");
  }
  void fill_circle(ui::Point centre, double radius, Colour colour) override {
    add_colour(colour, "rg ");
    add_circle(centre, radius);
    page_.append("f\n");
  }
  void stroke_circle(ui::Point centre, double radius, const Pen& pen) override {
    add_pen(pen);
    add_circle(centre, radius);
    page_.append("s\n");
  }

  void write(std::string_view text, ui::Point at, Colour colour) override {
    set_text(text, at, 0, colour);
  }
  void write_in_columns(std::string_view text, ui::Point at, double column,
                        Colour colour) override {
    set_text(text, at, column, colour);
  }

  [[nodiscard]] double width_of(std::string_view text) const override {
    double width = 0;
    for (const Character character : characters_of(text))
      width += letter_of(character.code).advance * letters_;
    return width;
  }
  [[nodiscard]] double ascent() const override { return faces_[0].face().ascent() * letters_; }
  [[nodiscard]] double descent() const override { return faces_[0].face().descent() * letters_; }

  void clip(const Box& box) override {
    page_.append("q ");
    add_number(page_, across(box.left));
    add_number(page_, up(box.bottom));
    add_number(page_, box.width() * point_);
    add_number(page_, box.height() * point_);
    page_.append("re W n\n");
  }
  void clip_no_more() override { page_.append("Q\n"); }

 private:
  struct Letter {
    std::size_t face = 0;
    TrueType::Glyph glyph = TrueType::kNoGlyph;
    double advance = 0;
  };

  [[nodiscard]] double across(double x) const { return size_.margins.left + x * point_; }
  [[nodiscard]] double up(double y) const { return size_.height - size_.margins.top - y * point_; }

  void add_point(ui::Point point) {
    add_number(page_, across(point.x));
    add_number(page_, up(point.y));
  }

  void add_path(const std::vector<ui::Point>& points) {
    std::string_view verb = "m ";
    for (const ui::Point point : points) {
      add_point(point);
      page_.append(verb);
      verb = "l ";
    }
  }

  // Four curves, whose handles make them round to a thousandth.
  void add_circle(ui::Point c, double r) {
    constexpr double kHandle = 0.5523;
    const double h = r * kHandle;
    const auto curve = [this](ui::Point a, ui::Point b, ui::Point to) {
      add_point(a);
      add_point(b);
      add_point(to);
      page_.append("c ");
    };
    add_point({c.x + r, c.y});
    page_.append("m ");
    curve({c.x + r, c.y + h}, {c.x + h, c.y + r}, {c.x, c.y + r});
    curve({c.x - h, c.y + r}, {c.x - r, c.y + h}, {c.x - r, c.y});
    curve({c.x - r, c.y - h}, {c.x - h, c.y - r}, {c.x, c.y - r});
    curve({c.x + h, c.y - r}, {c.x + r, c.y - h}, {c.x + r, c.y});
  }

  void add_colour(Colour colour, std::string_view verb) {
    constexpr double kFull = 255;
    for (const std::uint8_t part : {colour.red, colour.green, colour.blue}) {
      page_.append(text::format_fixed(part / kFull, 3)).push_back(' ');
    }
    page_.append(verb);
  }

  void add_pen(const Pen& pen) {
    add_colour(pen.colour, "RG ");
    const double width = pen.width * point_;
    add_number(page_, width);
    page_.append(pen.sharp ? "w 0 j " : "w 1 j ");
    page_.append(pen.dashed ? "0 J [" : "2 J [] 0 d ");
    if (!pen.dashed) return;
    add_number(page_, width * kDash);
    add_number(page_, width * kGap);
    page_.append("] 0 d ");
  }

  // Of the first face that has it; the box of the first one that stands for a missing character.
  [[nodiscard]] const Letter& letter_of(char32_t character) const {
    const auto [known, is_new] = letters_known_.try_emplace(character);
    if (is_new) known->second = find_letter(character);
    return known->second;
  }
  [[nodiscard]] Letter find_letter(char32_t character) const {
    for (std::size_t i = 0; i < faces_.size(); ++i) {
      const TrueType& face = faces_[i].face();
      const TrueType::Glyph glyph = face.glyph_of(character);
      if (glyph != TrueType::kNoGlyph) return {i, glyph, face.advance(glyph)};
    }
    return {0, TrueType::kNoGlyph, faces_[0].face().advance(TrueType::kNoGlyph)};
  }

  // Letters that follow each other by their own widths are one run. In columns a letter that is too
  // wide, from another face, is made narrower.
  void set_text(std::string_view text, ui::Point at, double column, Colour colour) {
    const std::vector<Character> characters = characters_of(text);
    if (characters.empty()) return;
    page_.append("BT ");
    add_colour(colour, "rg\n");
    double wanted = at.x;   // where the next letter is to stand
    double reached = at.x;  // and where it would by itself
    bool in_run = false;
    double squeeze = 1;
    std::size_t face_in_use = faces_.size();
    for (const Character character : characters) {
      const Letter& letter = letter_of(character.code);
      const double own = letter.advance * letters_;
      const double room = column > 0 ? static_cast<double>(character.columns) * column : own;
      const double squeezed = own > room + kOff * letters_ ? room / own : 1;
      const bool follows = std::abs(reached - wanted) < kOff * letters_ && squeeze == squeezed;
      if (in_run && (!follows || letter.face != face_in_use)) {
        page_.append(">Tj\n");
        in_run = false;
      }
      if (letter.face != face_in_use) {
        face_in_use = letter.face;
        page_.append("/F").append(std::to_string(face_in_use)).push_back(' ');
        add_number(page_, letters_ * point_);
        page_.append("Tf ");
      }
      if (!in_run) {
        page_.append("1 0 0 1 ");
        add_point({wanted, at.y});
        page_.append("Tm ");
        if (squeeze != squeezed) {
          add_number(page_, squeezed * kWhole);
          page_.append("Tz ");
          squeeze = squeezed;
        }
        page_.push_back('<');
        reached = wanted;
        in_run = true;
      }
      add_hex(page_, faces_[letter.face].number_of(letter.glyph, character.code));
      reached += own * squeezed;
      wanted += room;
    }
    page_.append(">Tj");
    if (squeeze != 1) page_.append(" 100 Tz");
    page_.append(" ET\n");
  }

  void end_page() {
    const std::size_t content = file_.add_stream(page_);
    std::string page("<</Type/Page/Parent ");
    page.append(reference(page_tree_)).append("/MediaBox[0 0 ");
    add_number(page, size_.width);
    add_number(page, size_.height);
    page.append("]/Resources ").append(reference(resources_));
    page.append("/Contents ").append(reference(content)).append(">>");
    pages_.push_back(file_.add(page));
    page_.clear();
  }

  static constexpr double kWhole = 100;  // per cent
  static constexpr double kOff = 0.002;  // of a letter's height: not seen

  SheetSize size_;
  double point_;  ///< of a dot
  std::vector<FaceInUse> faces_;
  mutable std::unordered_map<char32_t, Letter> letters_known_;
  double letters_ = 1;
  std::string page_;
  File file_;
  std::size_t page_tree_ = 0;
  std::size_t resources_ = 0;
  std::vector<std::size_t> pages_;
};

}  // namespace

Proportions proportions_of(const TrueType& face) {
  return {face.advance(face.glyph_of(U'0')), face.line()};
}

std::optional<std::string> pdf_of(const ui::Sheets& sheets, const SheetSize& size,
                                  const Faces& faces) {
  if (faces.empty()) return std::nullopt;
  PdfCanvas canvas(sheets, size, faces);
  if (!draw_pages(sheets, size, proportions_of(*faces[0]), canvas)) return std::nullopt;
  return std::move(canvas).end(sheets.name);
}

}  // namespace paper
