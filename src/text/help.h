#pragma once
// Help topics: one for each dialog, one file for each line of the Help menu.

#include <span>
#include <string>
#include <string_view>

#include "platform/ports.h"
#include "text/texts.h"

namespace text {

/// Help file base name and topic files; empty topics open the file at its start page.
struct HelpTopic {
  std::string_view base;
  std::string_view japanese;
  std::string_view english;
};

/// Topic of a dialog by its class name. No topic (an empty base) for a class without one.
[[nodiscard]] HelpTopic dialog_topic(std::string_view class_name);

struct DialogTopic {
  std::string_view class_name;
  HelpTopic topic;
};
[[nodiscard]] std::span<const DialogTopic> dialog_topics();

/// Opens help files in the folder "help" beneath the program folder.
class HelpLauncher {
 public:
  /// `program_folder` has no trailing backslash.
  HelpLauncher(const Texts& texts, platform::HelpViewer& viewer, std::string program_folder)
      : texts_(texts), viewer_(viewer), program_folder_(std::move(program_folder)) {}

  /// "<program>\help\<base>_E.CHM", "_J.CHM" in Japanese, then "::/" and the topic when it is not
  /// empty.
  [[nodiscard]] std::string path(const HelpTopic& topic) const;
  /// True when a help window was opened. A missing file or topic is the viewer's to report.
  bool show(const HelpTopic& topic) { return viewer_.show(path(topic)); }

 private:
  const Texts& texts_;
  platform::HelpViewer& viewer_;
  std::string program_folder_;
};

}  // namespace text
