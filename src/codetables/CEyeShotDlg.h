#pragma once
// Horizontal visibility VV: the ten bands of code table 4377 that serve at sea.

#include <string>

#include "codetables/CCodeTableDlg.h"

class CEyeShotDlg : public CCodeTableDlg {
 public:
  CEyeShotDlg(ui::Services& services, std::string vv);

 protected:
  /// By its number; a code outside 90-99 chooses no band.
  [[nodiscard]] std::string code_to_choose(const std::string& code) const override;
};
