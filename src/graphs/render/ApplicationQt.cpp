#include "graphs/render/ApplicationQt.h"

#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

namespace norvane {
namespace {

// Qt's own notes (a missing runtime folder, font hints) are not the user's
// business; only its serious failures reach standard error.
void FiltrerMessagesQt(QtMsgType sorte, const QMessageLogContext&, const QString& texte) {
  if (sorte == QtCriticalMsg || sorte == QtFatalMsg) fprintf(stderr, "Qt : %s\n", qPrintable(texte));
}

}  // namespace

void AssurerApplicationQt() {
  if (QGuiApplication::instance() != nullptr) return;
  const char* affichage = std::getenv("DISPLAY");
  const char* wayland = std::getenv("WAYLAND_DISPLAY");
  const bool sansAffichage = (affichage == nullptr || *affichage == '\0') && (wayland == nullptr || *wayland == '\0');
  if (sansAffichage && std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  qInstallMessageHandler(FiltrerMessagesQt);
  // The application lives as long as the process: Qt keeps the address of argc.
  static int argc = 1;
  static char nom[] = "norvane";
  static char* argv[] = {nom, nullptr};
  static QGuiApplication* application = new QGuiApplication(argc, argv);
  (void)application;
}

}  // namespace norvane
