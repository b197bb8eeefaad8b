#include "drivers/libreoffice/BureauLibreOffice.h"

#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <thread>
#include <vector>

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/bridge/XUnoUrlResolver.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <com/sun/star/container/XEnumeration.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/document/XTypeDetection.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XLoadable.hpp>
#include <com/sun/star/frame/XComponentLoader.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/frame/XFrames.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextContent.hpp>
#include <com/sun/star/text/XTextDocument.hpp>
#include <com/sun/star/text/XTextFieldsSupplier.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/text/XTextViewCursor.hpp>
#include <com/sun/star/text/XTextViewCursorSupplier.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <osl/file.hxx>
#include <rtl/ustring.hxx>

#include "drivers/EditeurGenerateur.h"
#include "drivers/libreoffice/ProcessusOffice.h"

namespace norvane {
namespace {

namespace css = com::sun::star;
using css::uno::Reference;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;
using rtl::OString;
using rtl::OUString;

constexpr auto kAttenteConnexion = std::chrono::seconds(60);
// Exit status of an office that asks to be started again.
constexpr int kRedemarrage = 81;

OUString Ou(const std::string& utf8) {
  return OUString(utf8.data(), static_cast<sal_Int32>(utf8.size()), RTL_TEXTENCODING_UTF8);
}

std::string Utf8(const OUString& texte) {
  const OString o = OUStringToOString(texte, RTL_TEXTENCODING_UTF8);
  return std::string(o.getStr(), static_cast<std::size_t>(o.getLength()));
}

css::beans::PropertyValue Propriete(const char* nom, const css::uno::Any& valeur) {
  css::beans::PropertyValue p;
  p.Name = OUString::createFromAscii(nom);
  p.Value = valeur;
  return p;
}

// The component context of this process, made once: the office's own
// type and service libraries, found through its fundamentalrc.
Reference<css::uno::XComponentContext> ContexteLocal() {
  static std::mutex garde;
  static Reference<css::uno::XComponentContext>* contexte = nullptr;
  std::lock_guard<std::mutex> verrou(garde);
  if (contexte == nullptr) {
    // Without it the bootstrap crashes instead of failing.
    setenv("URE_BOOTSTRAP", "vnd.sun.star.pathname:" NORVANE_LIBREOFFICE_PROGRAMME "/fundamentalrc", 0);
    contexte = new Reference<css::uno::XComponentContext>(cppu::defaultBootstrap_InitialComponentContext());
  }
  return *contexte;
}

std::string NomTube() {
  static std::atomic<int> compteur{0};
  return "norvane-" + std::to_string(getpid()) + "-" + std::to_string(compteur++) + "-" +
         std::to_string(std::chrono::steady_clock::now().time_since_epoch().count() % 1000000);
}

// The system path of a file URL; empty for any other URL.
std::string CheminDeUrl(const std::string& url) {
  OUString chemin;
  if (osl::FileBase::getSystemPathFromFileURL(Ou(url), chemin) != osl::FileBase::E_None) return {};
  return Utf8(chemin);
}

// The comments of a document taken out (they are not part of its PDF).
void RetirerCommentaires(const Reference<css::frame::XModel>& modele) {
  Reference<css::text::XTextFieldsSupplier> fournisseur(modele, UNO_QUERY);
  if (!fournisseur.is()) return;
  std::vector<Reference<css::text::XTextContent>> commentaires;
  Reference<css::container::XEnumeration> champs = fournisseur->getTextFields()->createEnumeration();
  while (champs->hasMoreElements()) {
    Reference<css::lang::XServiceInfo> champ(champs->nextElement(), UNO_QUERY);
    if (champ.is() && champ->supportsService("com.sun.star.text.textfield.Annotation")) {
      commentaires.emplace_back(champ, UNO_QUERY);
    }
  }
  for (const auto& commentaire : commentaires) {
    if (commentaire.is()) commentaire->getAnchor()->getText()->removeTextContent(commentaire);
  }
}

[[noreturn]] void Echouer(const css::uno::Exception& e) {
  const std::string texte = Utf8(e.Message);
  throw ErreurAutomation(texte.empty() ? "erreur de LibreOffice" : texte);
}

}  // namespace

struct BureauLibreOffice::Etat {
  SorteBureau sorte;
  std::string programme;
  std::string tube;
  int pid = -1;             // the office we started, -1 for none
  int verrouProfil = -1;
  bool profilTemporaire = false;
  std::string profil;
  Reference<css::uno::XComponentContext> distant;
  Reference<css::frame::XDesktop2> bureau;
  // Documents loaded through this object, the current one last.
  std::vector<Reference<css::frame::XModel>> documents;

  bool Prive() const { return sorte == SorteBureau::Prive; }

  std::vector<std::string> Commande() {
    const std::string accepter = "--accept=pipe,name=" + tube + ";urp;StarOffice.ComponentContext";
    if (!Prive()) return {programme, accepter};
    if (profil.empty()) profil = DossierProfilPrive(verrouProfil, profilTemporaire);
    return {Binaire(), "-env:UserInstallation=file://" + profil, "--headless", "--nologo", "--nodefault",
            "--norestore", "--nolockcheck", accepter};
  }

  // The office itself rather than its launcher script, so that the process
  // watched and ended is the office.
  std::string Binaire() const {
    std::error_code ec;
    const std::filesystem::path reel = std::filesystem::canonical(programme, ec);
    const std::filesystem::path binaire = reel.parent_path() / "soffice.bin";
    return !ec && std::filesystem::is_regular_file(binaire, ec) ? binaire.string() : programme;
  }

  // Starts the office (or asks the user's running one to accept a
  // connection: a second soffice forwards its arguments to it), then
  // connects with retries.
  void Demarrer() {
    tube = NomTube();
    pid = LancerProcessus(Commande());
    if (pid < 0) throw ErreurAutomation("impossible de lancer « " + programme + " »");
    const Reference<css::uno::XComponentContext> local = ContexteLocal();
    const Reference<css::bridge::XUnoUrlResolver> resolveur = css::bridge::UnoUrlResolver::create(local);
    const OUString url = Ou("uno:pipe,name=" + tube + ";urp;StarOffice.ComponentContext");
    const auto limite = std::chrono::steady_clock::now() + kAttenteConnexion;
    int relance = 0;
    for (;;) {
      try {
        distant.set(resolveur->resolve(url), UNO_QUERY_THROW);
        bureau = css::frame::Desktop::create(distant);
        return;
      } catch (const css::connection::NoConnectException&) {
      }
      if (Prive() && !ProcessusVivant(pid)) {
        // A new profile is made by a first run that asks to be started again.
        if (StatutFin(pid) != kRedemarrage || relance++ > 0) {
          throw ErreurAutomation("LibreOffice s'est arrêté au démarrage");
        }
        pid = LancerProcessus(Commande());
      }
      if (std::chrono::steady_clock::now() > limite) throw ErreurAutomation("LibreOffice ne répond pas");
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
  }

  // The bridge is tried before each operation: an office that was closed or
  // killed is started again, its documents lost.
  void Assurer() {
    if (bureau.is()) {
      try {
        if (!Prive() || ProcessusVivant(pid)) {
          bureau->getFrames()->getCount();
          return;
        }
      } catch (const css::uno::RuntimeException&) {
      }
      Oublier();
    }
    Demarrer();
  }

  void Oublier() {
    documents.clear();
    bureau.clear();
    distant.clear();
    if (Prive() && pid > 0) AttendreOuTuer(pid, 0);
    pid = -1;
  }

  // A hidden document is read as a model without any view: nobody looks at
  // it, and a view would draw windows (comments) whose interface files a
  // Writer without its interface lacks. The filter comes from the office's
  // type detection, RTF content being read as RTF whatever the name.
  Reference<css::frame::XModel> ChargerModele(const std::string& url, bool rtf) {
    Reference<css::lang::XMultiComponentFactory> services = distant->getServiceManager();
    std::vector<css::beans::PropertyValue> descripteur{Propriete("URL", css::uno::Any(Ou(url)))};
    if (rtf) descripteur.push_back(Propriete("FilterName", css::uno::Any(OUString("Rich Text Format"))));
    css::uno::Sequence<css::beans::PropertyValue> description(descripteur.data(),
                                                              static_cast<sal_Int32>(descripteur.size()));
    if (!rtf) {
      Reference<css::document::XTypeDetection> detection(
          services->createInstanceWithContext("com.sun.star.document.TypeDetection", distant), UNO_QUERY_THROW);
      if (detection->queryTypeByDescriptor(description, true).isEmpty()) {
        throw ErreurAutomation("format du document « " + url + " » inconnu");
      }
    }
    Reference<css::frame::XLoadable> modele(
        services->createInstanceWithContext("com.sun.star.text.TextDocument", distant), UNO_QUERY_THROW);
    modele->load(description);
    return Reference<css::frame::XModel>(modele, UNO_QUERY_THROW);
  }

  // A PDF is drawn from a view: a document read without one gets a hidden
  // frame, once its comments (whose windows the view cannot draw here) are
  // taken out.
  void DonnerVue(const Reference<css::frame::XModel>& modele) {
    if (modele->getCurrentController().is()) return;
    RetirerCommentaires(modele);
    css::uno::Sequence<css::beans::PropertyValue> arguments(2);
    arguments.getArray()[0] = Propriete("Model", css::uno::Any(modele));
    arguments.getArray()[1] = Propriete("Hidden", css::uno::Any(true));
    Reference<css::frame::XComponentLoader>(bureau, UNO_QUERY_THROW)
        ->loadComponentFromURL("private:object", "_blank", 0, arguments);
  }

  Reference<css::frame::XModel> Courant() {
    Assurer();
    if (!documents.empty()) return documents.back();
    return Reference<css::frame::XModel>(bureau->getCurrentComponent(), UNO_QUERY);
  }

  Reference<css::frame::XModel> CourantExige() {
    Reference<css::frame::XModel> modele = Courant();
    if (!modele.is()) throw ErreurAutomation("aucun document ouvert");
    return modele;
  }

  Reference<css::text::XTextViewCursor> Curseur() {
    Reference<css::text::XTextViewCursorSupplier> fournisseur(CourantExige()->getCurrentController(),
                                                              UNO_QUERY_THROW);
    return fournisseur->getViewCursor();
  }

  // The private office's documents are marked unmodified first: a modified
  // one would hold up the end of the office on its save question.
  void Fermer(const Reference<css::frame::XModel>& modele) {
    if (Prive()) {
      Reference<css::util::XModifiable> modifiable(modele, UNO_QUERY);
      if (modifiable.is()) modifiable->setModified(false);
    }
    Reference<css::util::XCloseable> fermable(modele, UNO_QUERY);
    if (fermable.is()) fermable->close(true);
    else Reference<css::lang::XComponent>(modele, UNO_QUERY_THROW)->dispose();
    std::erase(documents, modele);
  }

  void Terminer() {
    if (!bureau.is()) return LacherProfil();
    if (Prive()) {
      try {
        while (!documents.empty()) Fermer(documents.back());
        bureau->terminate();
      } catch (const css::uno::Exception&) {
      }
    }
    documents.clear();
    bureau.clear();
    distant.clear();
    if (Prive()) AttendreOuTuer(pid, 10);
    pid = -1;
    LacherProfil();
  }

  void LacherProfil() {
    if (profilTemporaire && !profil.empty()) {
      std::error_code ec;
      std::filesystem::remove_all(profil, ec);
      profil.clear();
    }
    if (verrouProfil >= 0) close(verrouProfil);
    verrouProfil = -1;
  }
};

BureauLibreOffice::BureauLibreOffice(SorteBureau sorte, std::string programme)
    : etat_(std::make_unique<Etat>()) {
  etat_->sorte = sorte;
  etat_->programme = std::move(programme);
}

BureauLibreOffice::~BureauLibreOffice() {
  try {
    etat_->Terminer();
  } catch (...) {
  }
}

void BureauLibreOffice::Connecter() {
  try {
    etat_->Assurer();
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

void BureauLibreOffice::Terminer() { etat_->Terminer(); }

int BureauLibreOffice::Processus() const { return etat_->pid > 0 ? etat_->pid : 0; }

// A file that holds RTF under another name (a result before its conversion)
// is read as RTF: the office would otherwise trust the name.
void BureauLibreOffice::Charger(const std::string& url) {
  try {
    etat_->Assurer();
    const std::string chemin = CheminDeUrl(url);
    const bool rtf = !chemin.empty() && ContientRtf(chemin);
    Reference<css::frame::XModel> modele;
    if (etat_->Prive() && !chemin.empty()) {
      modele = etat_->ChargerModele(url, rtf);
    } else {
      std::vector<css::beans::PropertyValue> proprietes;
      if (etat_->Prive()) proprietes.push_back(Propriete("Hidden", css::uno::Any(true)));
      if (rtf) proprietes.push_back(Propriete("FilterName", css::uno::Any(OUString("Rich Text Format"))));
      const css::uno::Sequence<css::beans::PropertyValue> arguments(proprietes.data(),
                                                                    static_cast<sal_Int32>(proprietes.size()));
      Reference<css::frame::XComponentLoader> chargeur(etat_->bureau, UNO_QUERY_THROW);
      modele.set(chargeur->loadComponentFromURL(Ou(url), "_blank", 0, arguments), UNO_QUERY);
    }
    if (!modele.is()) throw ErreurAutomation("le document « " + url + " » n'a pas pu être chargé");
    // Some import filters leave a document just read marked as modified.
    Reference<css::util::XModifiable> modifiable(modele, UNO_QUERY);
    if (modifiable.is()) modifiable->setModified(false);
    etat_->documents.push_back(modele);
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

// The private office's documents may have no frame: each counts as one.
int BureauLibreOffice::NombreCadres() {
  try {
    etat_->Assurer();
    if (etat_->Prive()) return static_cast<int>(etat_->documents.size());
    return static_cast<int>(Reference<css::container::XIndexAccess>(etat_->bureau->getFrames(), UNO_QUERY_THROW)
                                ->getCount());
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

bool BureauLibreOffice::DocumentCourant() {
  try {
    return etat_->Courant().is();
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

bool BureauLibreOffice::LectureSeule() {
  try {
    return Reference<css::frame::XStorable>(etat_->CourantExige(), UNO_QUERY_THROW)->isReadonly();
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

bool BureauLibreOffice::ALocation() {
  try {
    return Reference<css::frame::XStorable>(etat_->CourantExige(), UNO_QUERY_THROW)->hasLocation();
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

bool BureauLibreOffice::EstModifie() {
  try {
    return Reference<css::util::XModifiable>(etat_->CourantExige(), UNO_QUERY_THROW)->isModified();
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

void BureauLibreOffice::Enregistrer() {
  try {
    Reference<css::frame::XStorable>(etat_->CourantExige(), UNO_QUERY_THROW)->store();
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

// An export filter (PDF) writes a copy: the document keeps its own location.
void BureauLibreOffice::EnregistrerSous(const std::string& url, const std::string& filtre) {
  try {
    const Reference<css::frame::XModel> modele = etat_->CourantExige();
    const bool pdf = filtre == "writer_pdf_Export";
    if (pdf) etat_->DonnerVue(modele);
    Reference<css::frame::XStorable> stockable(modele, UNO_QUERY_THROW);
    css::uno::Sequence<css::beans::PropertyValue> arguments(2);
    arguments.getArray()[0] = Propriete("FilterName", css::uno::Any(Ou(filtre)));
    arguments.getArray()[1] = Propriete("Overwrite", css::uno::Any(true));
    if (pdf) stockable->storeToURL(Ou(url), arguments);
    else stockable->storeAsURL(Ou(url), arguments);
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

void BureauLibreOffice::FermerDocumentCourant() {
  try {
    etat_->Fermer(etat_->CourantExige());
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

// The office stays up for the next document; only the current one is let go.
void BureauLibreOffice::Liberer() {}

void BureauLibreOffice::InsererTexte(const std::string& texte, const std::string& police, int taille) {
  try {
    Reference<css::text::XTextViewCursor> curseur = etat_->Curseur();
    Reference<css::beans::XPropertySet> proprietes(curseur, UNO_QUERY_THROW);
    if (!police.empty()) proprietes->setPropertyValue("CharFontName", css::uno::Any(Ou(police)));
    if (taille != 0) proprietes->setPropertyValue("CharHeight", css::uno::Any(static_cast<float>(taille)));
    Reference<css::text::XTextRange> position(curseur, UNO_QUERY_THROW);
    curseur->getText()->insertString(position, Ou(texte), false);
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

std::string BureauLibreOffice::TexteSelection() {
  try {
    return Utf8(etat_->Curseur()->getString());
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

std::string BureauLibreOffice::TexteDocument() {
  try {
    Reference<css::text::XTextDocument> texte(etat_->CourantExige(), UNO_QUERY_THROW);
    return Utf8(texte->getText()->getString());
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

void BureauLibreOffice::SelectionnerTout() {
  try {
    Reference<css::text::XTextViewCursor> curseur = etat_->Curseur();
    curseur->gotoStart(false);
    curseur->gotoEnd(true);
  } catch (const css::uno::Exception& e) {
    Echouer(e);
  }
}

std::string ProgrammeLibreOffice(const std::string& cheminEditeur) {
  namespace fs = std::filesystem;
  std::error_code ec;
  std::string chemin = cheminEditeur;
  while (!chemin.empty() && (chemin.back() == '/' || chemin.back() == '\\')) chemin.pop_back();
  if (!chemin.empty() && chemin.find('\\') == std::string::npos && fs::is_regular_file(chemin, ec)) return chemin;
  for (const char* candidat : {NORVANE_LIBREOFFICE_PROGRAMME "/soffice", "/usr/bin/soffice", "/usr/bin/libreoffice",
                               "/usr/local/bin/soffice", "/opt/libreoffice/program/soffice"}) {
    if (fs::is_regular_file(candidat, ec)) return candidat;
  }
  return {};
}

}  // namespace norvane
