#pragma once
// The two copy commands of the menu: the logbook, or reports, to another folder or disk.
//
// Each step that can be refused is told, and changes nothing: nothing to copy, no disk, the folder
// that is copied from, a copy that exists already and stays, a copy that fails. A copy is whole or
// not there (media/verified_copy.h); the source is deleted only when the officer says so behind a
// copy that went well, and only when it still equals its copy.

#include "mainwindow/context.h"
#include "ui/services.h"

namespace mainwindow {

/// The logbook is copied and deleted under its lock, so that no other copy of the program writes
/// into it meanwhile; a save that was interrupted is put in order first. Where that cannot be done
/// the logbook is copied only if its last line is whole, and never deleted.
void copy_logbook(ui::Services& services, const MainWindowContext& context);

/// Up to so many reports each is told and asked about by itself; of more the officer is told the
/// numbers, and asked once for all whether to overwrite and to delete them, or to be asked for each.
inline constexpr std::size_t kFewReports = 5;

void copy_reports(ui::Services& services, const MainWindowContext& context);

}  // namespace mainwindow
