// The office's process: started detached from our terminal, watched, ended.
// The private profile lives under the user's cache folder.
#pragma once

#include <string>
#include <vector>

namespace norvane {

// Starts `arguments` (the program first) with its output thrown away; the
// process id, or -1 when it could not be started.
int LancerProcessus(const std::vector<std::string>& arguments);
// True while the process runs (it is reaped once it has ended, and its exit
// status kept for StatutFin).
bool ProcessusVivant(int pid);
// Exit status of a process that ProcessusVivant saw end; -1 when unknown.
int StatutFin(int pid);
// Waits up to `secondes` for the process to end, then kills it.
void AttendreOuTuer(int pid, int secondes);

// A private profile folder for this process's office, under
// $XDG_CACHE_HOME/norvane (or ~/.cache/norvane), created when missing. The
// shared one is reused while no other Norvane holds it; else one of our own.
// `verrou` receives the descriptor of the lock held (-1 for none), and
// `temporaire` whether the folder must be removed at the end.
std::string DossierProfilPrive(int& verrou, bool& temporaire);

}  // namespace norvane
