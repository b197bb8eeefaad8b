// ParamLog/Tervol.par is read as a stream, field after field:
//
//   OFFSET  SIZE     MEANING
//   0       360      Organisations(0)
//   360     1072     fixed head, unnamed fields (kEnteteParamLog), skipped
//   1432    2        ParamFinal, first reading (16-bit)
//   1434    19 x 360 Organisations(1..19)
//   8274    2        ParamFinal, second reading: overwrites the first
//
// Organisation record, 360 bytes:
//   OFFSET  SIZE  MEANING
//   0       80    Nom
//   80      80    Rue
//   160     60    Ville
//   220     20    Sigle
//   240     20    Telephone
//   260     20    Fax
//   280     80    Logo: path of a picture file
#include "study/ParamLog.h"

#include "frame/Disposition.h"
#include "frame/ResolutionChemins.h"

namespace norvane {
namespace {

namespace champ {
constexpr ChampDisposition Nom{"Nom", 0, 80};
constexpr ChampDisposition Rue{"Rue", 80, 80};
constexpr ChampDisposition Ville{"Ville", 160, 60};
constexpr ChampDisposition Sigle{"Sigle", 220, 20};
constexpr ChampDisposition Telephone{"Telephone", 240, 20};
constexpr ChampDisposition Fax{"Fax", 260, 20};
constexpr ChampDisposition Logo{"Logo", 280, 80};
constexpr ChampDisposition ParamFinal{"ParamFinal", 0, 2};
}  // namespace champ

constexpr ChampDisposition kChampsOrganisation[] = {champ::Nom,       champ::Rue, champ::Ville, champ::Sigle,
                                                    champ::Telephone, champ::Fax, champ::Logo};
static_assert(PaveEnregistrement(kChampsOrganisation, kLongueurOrganisation),
              "an organisation's fields tile 360 bytes");

constexpr std::size_t LongueurEntete() {
  std::size_t longueur = 0;
  for (const ChampEnteteParamLog& champ : kEnteteParamLog) longueur += champ.largeur * champ.nombre;
  return longueur;
}
static_assert(LongueurEntete() == 1072, "the head of Tervol.par holds 1072 bytes");
// The whole stream, as the layout above gives it.
constexpr std::size_t kLongueurParamLog = 20 * kLongueurOrganisation + LongueurEntete() + 2 * 2;
static_assert(kLongueurParamLog == 8276, "Tervol.par ends after its second ParamFinal");

void SauterEntete(LecteurBinaire& lecteur) {
  for (const ChampEnteteParamLog& champ : kEnteteParamLog) lecteur.Sauter(champ.largeur * champ.nombre);
}

// The failure of `lecteur` (at the first failed read) as an error of Tervol.par.
ErreurLecture ErreurParamLog(const LecteurBinaire& lecteur, std::size_t taille, const std::string& partie) {
  ErreurLecture erreur = lecteur.Erreur("Fichier des paramètres incomplet : " + std::to_string(taille) +
                                            " octets au lieu de " + std::to_string(kLongueurParamLog) + ".",
                                        "Tervol.par");
  erreur.champ = partie + (erreur.champ.empty() || partie.empty() ? "" : ".") + erreur.champ;
  return erreur;
}

}  // namespace

bool LireOrganisation(LecteurBinaire& l, Organisation& o) {
  l.LireTexte(o.Nom, champ::Nom);
  l.LireTexte(o.Rue, champ::Rue);
  l.LireTexte(o.Ville, champ::Ville);
  l.LireTexte(o.Sigle, champ::Sigle);
  l.LireTexte(o.Telephone, champ::Telephone);
  l.LireTexte(o.Fax, champ::Fax);
  l.LireTexte(o.Logo, champ::Logo);
  return l.Ok();
}

Resultat<void> LireParamLogOctets(std::string_view octets, std::array<Organisation, 20>& organisations,
                                  int16_t& paramFinal) {
  LecteurBinaire lecteur(octets);
  if (!LireOrganisation(lecteur, organisations[0])) return ErreurParamLog(lecteur, octets.size(), "Organisations(0)");
  SauterEntete(lecteur);
  if (!lecteur.Lire(paramFinal, champ::ParamFinal)) return ErreurParamLog(lecteur, octets.size(), "");
  for (std::size_t i = 1; i < organisations.size(); ++i) {
    if (!LireOrganisation(lecteur, organisations[i])) {
      return ErreurParamLog(lecteur, octets.size(), "Organisations(" + std::to_string(i) + ")");
    }
  }
  if (!lecteur.Lire(paramFinal, champ::ParamFinal)) return ErreurParamLog(lecteur, octets.size(), "");
  return {};
}

Resultat<void> LireParamLog(Session& session) {
  auto octets = LireFichier(session.RepWinTervol + "ParamLog/Tervol.par", kLongueurParamLog);
  if (!octets) return {};
  return LireParamLogOctets(*octets, session.Organisations, session.ParamFinal);
}

}  // namespace norvane
