#include "frame/Editeur.h"

#include <array>
#include <utility>

#include "frame/Encodage.h"
#include "frame/Parametres.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

std::string_view SansSeparateurFinal(std::string_view chemin) {
  while (!chemin.empty() && (chemin.back() == '/' || chemin.back() == '\\')) chemin.remove_suffix(1);
  return chemin;
}

std::string DernierComposant(std::string_view chemin) {
  const std::string t = Trim(chemin);
  const std::string_view s = SansSeparateurFinal(t);
  const std::size_t barre = s.find_last_of("/\\");
  return std::string(barre == std::string_view::npos ? s : s.substr(barre + 1));
}

std::string Capitaliser(std::string_view nom) {
  std::string r = Minuscules(nom);
  if (!r.empty()) r[0] = MajusculeCp1252(r[0]);
  return r;
}

}  // namespace

std::string NomEditeur(std::string_view cheminEditeur) { return Minuscules(DernierComposant(cheminEditeur)); }

std::string NomEditeur(const Options& options) { return NomEditeur(options.CheminEditeur); }

bool EstDriverOpenOffice(std::string_view nomEditeur) {
  return nomEditeur == "soffice" || nomEditeur == "soffice.bin" || nomEditeur == "libreoffice" ||
         nomEditeur == "soffice.exe";
}

std::string NomAffichageEditeur(std::string_view chemin) {
  if (EstBlanc(chemin)) return "Aucun";
  std::string nom = DernierComposant(chemin);
  if (FinitPar(nom, ".exe", true)) nom.resize(nom.size() - 4);
  nom = Capitaliser(nom);
  static const std::array<std::pair<const char*, const char*>, 5> kProduits = {{
      {"Winword", "Microsoft Word"},
      {"Wordpro", "Lotus Word Pro"},
      {"Soffice", "Sun OpenOffice"},
      {"Soffice.bin", "Sun OpenOffice"},
      {"Libreoffice", "LibreOffice"},
  }};
  for (const auto& [fichier, produit] : kProduits) {
    if (nom == fichier) return produit;
  }
  return Cp1252VersUtf8(nom);
}

std::string AfficherEditeur(Options& options, std::string_view chemin) {
  options.CheminEditeur = Trim(chemin);
  return NomAffichageEditeur(options.CheminEditeur);
}

VerificationEditeur VerifierEditeur(Options& options) {
  if (EstBlanc(options.CheminEditeur)) return {true, {}};
  options.CheminEditeur = std::string(SansSeparateurFinal(Trim(options.CheminEditeur)));
  return {false, NomAffichageEditeur(options.CheminEditeur)};
}

std::string ValiderEditeur(SessionCadre& session, std::string_view chemin, PortMessages& messages) {
  if (EstBlanc(chemin)) {
    messages.PoserQuestion(kTitreChoixEditeur, "Le chemin de l'éditeur choisi est vide !", Boutons::Ok,
                           Icone::Exclamation, 0);
  }
  std::string ancien = session.options.CheminEditeur;
  session.options.CheminEditeur = Trim(chemin);
  if (const Resultat<void> enregistre = EnregistrerOptions(session); !enregistre) {
    session.options.CheminEditeur = std::move(ancien);
    messages.AfficherMessage("OptionsNorvane", kTitreChoixEditeur, enregistre.Erreur().texte, "", "");
  }
  return AfficherEditeur(session.options, session.options.CheminEditeur);
}

std::string CompleterExe(std::string_view nomFichier) {
  std::string nom(nomFichier);
  if (EstBlanc(nom)) return nom;
  if (nom.size() >= 4 && nom[nom.size() - 4] == '.') return nom.substr(0, nom.size() - 3) + "exe";
  return nom + ".exe";
}

void ChoisirPopup(Options& options, int coche) { options.MasquerPopup = coche == 1 ? 0 : 1; }

int16_t OptimisationOOoActive(const Options& options) { return options.OptimisationOOo; }

}  // namespace norvane
