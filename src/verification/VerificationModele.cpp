#include "verification/VerificationModele.h"

#include <algorithm>
#include <utility>

#include "frame/Encodage.h"
#include "study/DossierGeneral.h"
#include "template/Morceaux.h"
#include "template/ParcoursCreation.h"
#include "template/SeriesFormules.h"

namespace norvane {
namespace {

// The walk of creation, each code checked instead of interpreted and placed
// where it stood in the template: the checker meets the codes that
// generation meets, glued, repaired and cut as generation has them.
class ParcoursVerification : public ParcoursCreation {
 public:
  ParcoursVerification(Generation& generation, ModeleDecoupe decoupe, MessagesEnregistres& messages,
                       const PlacesModele& places)
      : ParcoursCreation(generation, std::move(decoupe), std::string()),
        messages_(messages),
        verificateur_(generation, messages),
        places_(places) {
    SuivreOrigines(suivi_);
  }

  std::vector<CodeVerifie> codes;

 protected:
  int16_t Interpreter(std::string& code, std::size_t debut) override {
    codes.push_back(verificateur_.Verifier(code));
    codes.back().place = places_.Situer(suivi_.Origine(debut));
    return verificateur_.DernierResultat();
  }

  // The box of generation, recorded as the fault of the code it names.
  void SignalerSansFin(const std::string& extrait, std::size_t debut) override {
    messages_.Vider();
    ParcoursCreation::SignalerSansFin(extrait, debut);
    CodeVerifie c;
    c.place = places_.Situer(suivi_.Origine(debut));
    c.code = Cp1252VersUtf8(extrait);
    c.statut = Statut::Erreur;
    c.message = MessagesEnregistres::Joindre(messages_.fautes);
    codes.push_back(std::move(c));
  }

 private:
  MessagesEnregistres& messages_;
  VerificateurCode verificateur_;
  const PlacesModele& places_;
  OriginesMorceau suivi_;
};

}  // namespace

std::vector<CodeVerifie> VerifierModele(Session& session, const EntitesCourantes& entites, std::string_view contenu) {
  const PlacesModele places(contenu);
  MessagesEnregistres messages;
  ProgressionMuette progression;
  Generation generation(session, messages, progression, entites);
  ChargerInfoDossier(generation.session);
  messages.syntaxeSeule = !DossierChoisi(session);
  ParcoursVerification parcours(generation, DecouperEnMorceaux(contenu), messages, places);
  parcours.Executer();
  return std::move(parcours.codes);
}

std::size_t Nombre(const std::vector<CodeVerifie>& codes, Statut statut) {
  return static_cast<std::size_t>(
      std::count_if(codes.begin(), codes.end(), [statut](const CodeVerifie& c) { return c.statut == statut; }));
}

}  // namespace norvane
