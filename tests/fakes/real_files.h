#pragma once
// The files of this computer, whichever system it has, with a folder of it as C:.

#include <memory>
#include <string>

#include "platform/system/system.h"

namespace fakes {

class RealFiles {
 public:
  explicit RealFiles(const std::string& root) : system_(platform::open_files(root)) {}
  [[nodiscard]] platform::Files& files() const { return system_->files(); }

 private:
  std::unique_ptr<platform::SystemFiles> system_;
};

}  // namespace fakes
