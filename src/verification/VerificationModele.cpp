#include "template/SeriesFormules.h"
#include "verification/VerificationModele.h"

#include <algorithm>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "study/DossierGeneral.h"
#include "template/Morceaux.h"
#include "template/Textes.h"

namespace norvane {
namespace {

// A start mark with no end mark behind it: the generator's own words, and
// the excerpt it shows.
CodeVerifie SansBaliseDeFin(std::string_view reste) {
  CodeVerifie c;
  const std::string extrait = reste.size() < 66 ? std::string(reste) : std::string(reste.substr(0, 62)) + "...";
  c.code = Cp1252VersUtf8(extrait);
  c.statut = Statut::Erreur;
  c.message =
      "Norvane ne trouve pas la balise de fin d'un code à interpréter dans le modèle de document utilisé pour la "
      "création.";
  return c;
}

}  // namespace

std::vector<CodeVerifie> VerifierModele(Session& session, const EntitesCourantes& entites, std::string_view contenu) {
  // The pieces the generator reads, glued back: a code torn across lines or
  // pieces is whole in it, as the gluing of the generator makes it.
  std::string texte;
  for (const std::string& morceau : DecouperEnMorceaux(contenu).morceaux) texte += morceau;
  const PlacesModele places(contenu);

  MessagesEnregistres messages;
  ProgressionMuette progression;
  Generation generation(session, messages, progression, entites);
  ChargerInfoDossier(generation.session);
  messages.syntaxeSeule = !DossierChoisi(session);
  VerificateurCode verificateur(generation, messages);

  std::vector<CodeVerifie> codes;
  for (std::size_t p = ChercherSansCasse(texte, kMarqueDebut); p != std::string::npos;) {
    const std::size_t fin = texte.find(kMarqueFin, p + kMarqueDebut.size());
    if (fin == std::string::npos) {
      codes.push_back(SansBaliseDeFin(std::string_view(texte).substr(p)));
      codes.back().place = places.Situer(p);
      break;
    }
    codes.push_back(verificateur.Verifier(std::string_view(texte).substr(p, fin + kMarqueFin.size() - p)));
    codes.back().place = places.Situer(p);
    p = ChercherSansCasse(texte, kMarqueDebut, fin + kMarqueFin.size());
  }
  return codes;
}

std::size_t Nombre(const std::vector<CodeVerifie>& codes, Statut statut) {
  return static_cast<std::size_t>(
      std::count_if(codes.begin(), codes.end(), [statut](const CodeVerifie& c) { return c.statut == statut; }));
}

}  // namespace norvane
