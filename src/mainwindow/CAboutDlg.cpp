#include "mainwindow/CAboutDlg.h"

#include <string_view>

#include "text/ids.h"
#include "text/strings.h"
#include "version.inc"

namespace id = text::id;

namespace mainwindow {

CAboutDlg::CAboutDlg(ui::Services& services)
    : OkDialog(services, "CAboutDlg", {id::kAboutTitle}),
      icon(*this, "icon"),
      program(*this, "program"),
      sources(*this, "sources", {id::kAboutSourcesLabel}) {
  icon.set("kavrel.png");
  program.literal_caption = text::fill(services.texts.get(id::kVersionInformation), {kVersion});
  sources.set(services.texts.get(id::kAboutSources));
}

}  // namespace mainwindow
