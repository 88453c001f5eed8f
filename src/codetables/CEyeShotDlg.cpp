#include "codetables/CEyeShotDlg.h"

#include <utility>

#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;

namespace {

constexpr CodeTableRow kTable4377[] = {
    {"//", id::kVisibilityUnknown}, {"99", id::kVisibility50km},  {"98", id::kVisibility20km},
    {"97", id::kVisibility10km},    {"96", id::kVisibility4km},   {"95", id::kVisibility2km},
    {"94", id::kVisibility1km},     {"93", id::kVisibility500m},  {"92", id::kVisibility200m},
    {"91", id::kVisibility50m},     {"90", id::kVisibilityBelow},
};

constexpr CodeTable kVisibility = {"CEyeShotDlg", id::kVisibilityTitle, id::kVisibilityHeading,
                                   id::kVisibilityGroup, kTable4377};

}  // namespace

CEyeShotDlg::CEyeShotDlg(ui::Services& services, std::string vv)
    : CCodeTableDlg(services, kVisibility, std::move(vv)) {}

std::string CEyeShotDlg::code_to_choose(const std::string& code) const {
  const std::string_view trimmed = text::trim(code);
  if (trimmed.empty() || trimmed == "//") return std::string(trimmed);
  return text::format_int(text::leading_int(trimmed));
}
