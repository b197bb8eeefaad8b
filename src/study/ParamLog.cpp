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

#include "frame/OutilsFichiers.h"

namespace norvane {
namespace {

void SauterEntete(LecteurBinaire& lecteur) {
  for (const ChampEnteteParamLog& champ : kEnteteParamLog) lecteur.Sauter(champ.largeur * champ.nombre);
}

}  // namespace

bool LireOrganisation(LecteurBinaire& l, Organisation& o) {
  l.LireTexte(o.Nom, 80);
  l.LireTexte(o.Rue, 80);
  l.LireTexte(o.Ville, 60);
  l.LireTexte(o.Sigle, 20);
  l.LireTexte(o.Telephone, 20);
  l.LireTexte(o.Fax, 20);
  l.LireTexte(o.Logo, 80);
  return l.Ok();
}

void LireParamLogOctets(std::string_view octets, std::array<Organisation, 20>& organisations, int16_t& paramFinal) {
  LecteurBinaire lecteur(octets);
  LireOrganisation(lecteur, organisations[0]);
  SauterEntete(lecteur);
  lecteur.Lire(paramFinal);
  for (std::size_t i = 1; i < organisations.size(); ++i) LireOrganisation(lecteur, organisations[i]);
  lecteur.Lire(paramFinal);
}

void LireParamLog(Session& session) {
  auto octets = LireFichier(session.RepWinTervol + "ParamLog/Tervol.par");
  if (octets) LireParamLogOctets(*octets, session.Organisations, session.ParamFinal);
}

}  // namespace norvane
