#include "tables/CodeTableau.h"

#include <algorithm>
#include <array>
#include <optional>

#include "frame/Encodage.h"
#include "tables/Crochets.h"

namespace norvane {

namespace {

constexpr std::string_view kLarg = ";larg";
constexpr std::array<std::string_view, 3> kPrefixesType = {"culture", "cultper", "actlibr"};

bool EstChiffre(char c) { return c >= '0' && c <= '9'; }

// A stop of the reading at `octet`, for the reason given (French).
ErreurLecture Stop(std::size_t octet, std::string raison) {
  ErreurLecture erreur;
  erreur.texte = std::move(raison);
  erreur.octet = octet;
  return erreur;
}

// A view over the code being read that knows where it started, so that a
// stop can be told as an offset into the text the caller gave.
class Curseur {
 public:
  explicit Curseur(std::string_view texte) : debut_(texte), reste_(texte) {}

  std::size_t Position() const { return static_cast<std::size_t>(reste_.data() - debut_.data()); }
  std::string_view Reste() const { return reste_; }
  bool Prendre(std::string_view mot) {
    if (reste_.substr(0, mot.size()) != mot) return false;
    reste_.remove_prefix(mot.size());
    return true;
  }
  // One digit, consumed only when it is one.
  std::optional<int16_t> Chiffre() {
    if (reste_.empty() || !EstChiffre(reste_.front())) return std::nullopt;
    const auto valeur = static_cast<int16_t>(reste_.front() - '0');
    reste_.remove_prefix(1);
    return valeur;
  }
  // Decimal digits up to the first other character; nullopt when there is
  // none or the number does not fit 16 bits.
  std::optional<int16_t> Nombre() {
    std::size_t n = 0;
    int32_t valeur = 0;
    while (n < reste_.size() && EstChiffre(reste_[n])) {
      valeur = valeur * 10 + (reste_[n] - '0');
      if (valeur > INT16_MAX) return std::nullopt;
      ++n;
    }
    if (n == 0) return std::nullopt;
    reste_.remove_prefix(n);
    return static_cast<int16_t>(valeur);
  }
  ErreurLecture Arret(std::string raison) const { return Stop(Position(), std::move(raison)); }

 private:
  std::string_view debut_;
  std::string_view reste_;
};

// The same result with its stop moved `decalage` bytes further: a part's
// offsets told in the text of the whole.
Resultat<void> Decaler(Resultat<void> lu, std::size_t decalage) {
  if (lu) return lu;
  ErreurLecture erreur = lu.Erreur();
  erreur.octet += decalage;
  return erreur;
}

// Offset of `partie` (a view inside `tout`) from the start of `tout`.
std::size_t Decalage(std::string_view tout, std::string_view partie) {
  return static_cast<std::size_t>(partie.data() - tout.data());
}

// A whole field read as a 16-bit integer: optional "-", then digits only.
std::optional<int16_t> EntierStrict(std::string_view texte) {
  const bool negatif = !texte.empty() && texte.front() == '-';
  if (negatif) texte.remove_prefix(1);
  if (texte.empty() || texte.size() > 5) return std::nullopt;
  int32_t valeur = 0;
  for (char c : texte) {
    if (!EstChiffre(c)) return std::nullopt;
    valeur = valeur * 10 + (c - '0');
  }
  if (negatif) valeur = -valeur;
  if (valeur > INT16_MAX || valeur < INT16_MIN) return std::nullopt;
  return static_cast<int16_t>(valeur);
}

// Cell text "Texte;<9 Police fields>;<5 Cadre fields>". Without ";" the
// whole text is Texte and the formats are empty; with fewer than nine ";"
// after the text, all that follows is Police.
void LireCellule(std::string_view texte, CelluleTableau& cellule) {
  const std::size_t pointVirgule = texte.find(';');
  if (pointVirgule == std::string_view::npos) {
    cellule = CelluleTableau{std::string(texte), {}, {}};
    return;
  }
  cellule.Texte = std::string(texte.substr(0, pointVirgule));
  const std::string_view formats = texte.substr(pointVirgule + 1);
  std::size_t position = 0;
  int vus = 0;
  while (vus < 9 && (position = formats.find(';', position)) != std::string_view::npos) {
    ++vus;
    if (vus < 9) ++position;
  }
  if (vus < 9) {
    cellule.Police = std::string(formats);
    cellule.Cadre.clear();
  } else {
    cellule.Police = std::string(formats.substr(0, position));
    cellule.Cadre = std::string(formats.substr(position + 1));
  }
}

// "<digit>@" in front of a definition: the year of a multi-dossier series.
void LireNumSerie(LigneTableau& ligne) {
  std::string& texte = ligne.Definition.Texte;
  if (texte.size() >= 2 && EstChiffre(texte[0]) && texte[1] == '@') {
    ligne.NumSerie = static_cast<int16_t>(texte[0] - '0');
    texte.erase(0, 2);
  }
}

// One line "[H;M][cell]...[definition]". The line has been counted already.
Resultat<void> LireLigne(std::string_view tout, std::string_view piece, int16_t nbColonnes, LigneTableau& ligne) {
  const std::size_t debut = Decalage(tout, piece);
  const std::string_view hauteurMarge = ExtraireCrochets(piece);
  if (hauteurMarge == kErreurCrochets) {
    return Stop(debut, "une ligne ne commence pas par sa hauteur et sa marge entre crochets");
  }
  const std::size_t pointVirgule = hauteurMarge.find(';');
  const std::optional<int16_t> hauteur = EntierStrict(hauteurMarge.substr(0, pointVirgule));
  const std::optional<int16_t> marge = pointVirgule == std::string_view::npos
                                           ? std::nullopt
                                           : EntierStrict(hauteurMarge.substr(pointVirgule + 1));
  if (!hauteur || !marge) return Stop(debut, "hauteur ou marge de ligne non numérique");
  ligne.Hauteur = *hauteur;
  ligne.Marge = *marge;
  for (int k = 0; k < nbColonnes; ++k) {
    const std::string_view texte = ExtraireCrochets(piece);
    if (texte == kErreurCrochets) return Stop(Decalage(tout, piece), "cellule de libellé manquante");
    CelluleTableau& cellule = ligne.Cellules[static_cast<std::size_t>(k)];
    LireCellule(texte, cellule);
    std::replace(cellule.Texte.begin(), cellule.Texte.end(), '_', ' ');
  }
  const std::string_view definition = ExtraireCrochets(piece);
  if (definition == kErreurCrochets) return Stop(Decalage(tout, piece), "définition de ligne manquante");
  LireCellule(definition, ligne.Definition);
  LireNumSerie(ligne);
  return {};
}

std::string FormatOuDefaut(const std::string& format, const std::string& defaut) {
  return format.empty() ? defaut : format;
}

void EcrireCellule(std::string& sortie, std::string_view prefixe, const CelluleTableau& cellule,
                   const std::string& policeDefaut) {
  sortie += '[';
  sortie += prefixe;
  sortie += cellule.Texte;
  sortie += ';';
  sortie += FormatOuDefaut(cellule.Police, policeDefaut);
  sortie += ';';
  sortie += FormatOuDefaut(cellule.Cadre, kCadreReparation);
  sortie += ']';
}

void EcrireEntete(std::string& sortie, const ModeleTableau& modele) {
  if (modele.TypeTableau >= 1 && modele.TypeTableau <= 3 && modele.MultiDossier == 0) {
    sortie += kPrefixesType[static_cast<std::size_t>(modele.TypeTableau - 1)];
    sortie += std::to_string(modele.StyleTitre);
    if (modele.NumChapitre != -1) sortie += std::to_string(modele.NumChapitre);
  }
  sortie += "tab";
  sortie += modele.MultiDossier == 1 ? 'd' : 'a';
  sortie += std::to_string(modele.NbDossiers);
  sortie += 'p';
  sortie += std::to_string(modele.NbColonnes);
  if (modele.Centre == 1) sortie += 'c';
  if (modele.NegatifsRouges == 1) sortie += 'r';
  if (modele.ModeAnnees >= 0) sortie += std::to_string(modele.ModeAnnees);
  const int nbColonnes = std::clamp<int>(modele.NbColonnes, 0, kColonnesMax);
  for (int k = 0; k < nbColonnes; ++k) {
    sortie += kLarg;
    sortie += std::to_string(modele.Largeurs[static_cast<std::size_t>(k)]);
  }
  sortie += kLarg;
  sortie += std::to_string(modele.LargeurValeurs);
  sortie += '(';
}

void EcrireLigne(std::string& sortie, const ModeleTableau& modele, const LigneTableau& ligne,
                 const std::string& policeDefaut) {
  sortie += '[' + std::to_string(ligne.Hauteur) + ';' + std::to_string(ligne.Marge) + ']';
  const int nbColonnes = std::clamp<int>(modele.NbColonnes, 0, kColonnesMax);
  for (int k = 0; k < nbColonnes; ++k) {
    EcrireCellule(sortie, {}, ligne.Cellules[static_cast<std::size_t>(k)], policeDefaut);
  }
  std::string prefixe;
  if (modele.MultiDossier == 1 && ligne.Definition.Texte.starts_with("serie")) {
    prefixe = std::to_string(ligne.NumSerie) + '@';
  }
  EcrireCellule(sortie, prefixe, ligne.Definition, policeDefaut);
}

std::string Guillemets(const std::string& texteCp1252) { return "\"" + Cp1252VersUtf8(texteCp1252) + "\""; }

void SignalerDefinitionIncomplete(const ModeleTableau& modele, int numeroLigne, int indice,
                                  PortMessages& messages) {
  std::string texte = "Il vous faut définir les cellules de la ligne " + std::to_string(numeroLigne) +
                      " du tableau n°" + std::to_string(indice) + " " + Guillemets(modele.Nom) +
                      " dans le dossier " + Guillemets(modele.DossierTableau);
  if (!modele.SousDossierTableau.empty()) texte += ", sous-dossier : " + Guillemets(modele.SousDossierTableau);
  texte += ".";
  messages.AfficherMessage("GestTableau", "Edition d'un tableau : définition incomplète !", texte, "", "");
}

// Both modes of writing; `messages` null is the silent mode.
std::string Ecrire(const ModeleTableau& modele, int indice, PortMessages* messages, const DefautsCellule& defauts) {
  const std::string policeDefaut = PoliceParDefaut(defauts);
  std::string sortie;
  EcrireEntete(sortie, modele);
  const int nbLignes = std::clamp<int>(modele.NbLignes, 0, kLignesMax);
  for (int l = 0; l < nbLignes; ++l) {
    const LigneTableau& ligne = modele.Lignes[static_cast<std::size_t>(l)];
    if (ligne.Definition.Texte.empty()) {
      if (messages == nullptr) return {};
      SignalerDefinitionIncomplete(modele, l + 1, indice, *messages);
      break;
    }
    if (l > 0) sortie += '#';
    EcrireLigne(sortie, modele, ligne, policeDefaut);
  }
  sortie += ')';
  std::replace(sortie.begin(), sortie.end(), ' ', '_');
  return sortie;
}

}  // namespace

Resultat<void> LireTypeTableau(std::string_view& code, ModeleTableau& modele) {
  modele.TypeTableau = 0;
  modele.StyleTitre = 1;
  modele.NumChapitre = -1;
  Curseur curseur(code);
  for (std::size_t i = 0; i < kPrefixesType.size(); ++i) {
    if (!curseur.Prendre(kPrefixesType[i])) continue;
    modele.TypeTableau = static_cast<int16_t>(i + 1);
    const std::size_t tab = curseur.Reste().find("tab");
    if (tab == std::string_view::npos) return curseur.Arret("le mot « tab » manque après le type de tableau");
    const std::string_view chiffres = curseur.Reste().substr(0, tab);
    if (chiffres.size() > 3 || !std::all_of(chiffres.begin(), chiffres.end(), EstChiffre)) {
      return curseur.Arret("le style de titre et le numéro de chapitre doivent être des chiffres");
    }
    if (!chiffres.empty()) modele.StyleTitre = static_cast<int16_t>(chiffres[0] - '0');
    if (chiffres.size() > 1) modele.NumChapitre = *EntierStrict(chiffres.substr(1));
    curseur.Prendre(chiffres);
    break;
  }
  code = curseur.Reste();
  return {};
}

Resultat<void> LireEnteteCode(std::string_view& code, ModeleTableau& modele) {
  Curseur curseur(code);
  const auto fin = [&](Resultat<void> resultat) {
    code = curseur.Reste();
    return resultat;
  };
  if (!curseur.Prendre("tab")) return fin(curseur.Arret("le code d'un tableau commence par « tab »"));
  modele.MultiDossier = 0;
  modele.NbDossiers = 2;
  const bool multi = curseur.Prendre("d");
  if (multi || curseur.Prendre("a")) {
    const std::optional<int16_t> nbDossiers = curseur.Chiffre();
    if (!nbDossiers) return fin(curseur.Arret("le nombre de dossiers doit être un chiffre"));
    modele.MultiDossier = multi ? 1 : 0;
    modele.NbDossiers = *nbDossiers;
  }
  modele.NbColonnes = 1;
  if (curseur.Prendre("p")) {
    const std::optional<int16_t> nbColonnes = curseur.Chiffre();
    if (!nbColonnes) return fin(curseur.Arret("le nombre de colonnes doit être un chiffre"));
    modele.NbColonnes = *nbColonnes;
  }
  modele.Centre = curseur.Prendre("c") ? 1 : 0;
  modele.NegatifsRouges = curseur.Prendre("r") ? 1 : 0;
  modele.ModeAnnees = 0;
  if (!curseur.Reste().empty() && curseur.Reste().front() >= '0' && curseur.Reste().front() <= '3') {
    modele.ModeAnnees = *curseur.Chiffre();
  }
  modele.LargeurValeurs = 7200;
  if (!curseur.Reste().starts_with(kLarg)) {
    modele.Largeurs.fill(1000);
  } else {
    for (int k = 0; k <= modele.NbColonnes; ++k) {
      if (!curseur.Prendre(kLarg)) {
        if (k < modele.NbColonnes) modele.Largeurs[static_cast<std::size_t>(k)] = 1000;
        continue;
      }
      const std::optional<int16_t> largeur = curseur.Nombre();
      if (!largeur) return fin(curseur.Arret("une largeur de colonne n'est pas un nombre"));
      if (k < modele.NbColonnes) {
        modele.Largeurs[static_cast<std::size_t>(k)] = *largeur;
      } else {
        modele.LargeurValeurs = *largeur;
      }
    }
  }
  if (!curseur.Prendre("(")) return fin(curseur.Arret("la parenthèse qui ouvre les lignes du tableau manque"));
  return fin({});
}

Resultat<void> LireLignesCode(std::string_view& code, ModeleTableau& modele) {
  const std::string_view tout = code;
  std::string_view lignes = code;
  if (lignes.ends_with(')')) lignes.remove_suffix(1);
  if (modele.Lignes.size() < static_cast<std::size_t>(kLignesMax)) modele.Lignes.resize(kLignesMax);
  modele.NbLignes = 0;
  const auto nbColonnes = static_cast<int16_t>(std::clamp<int>(modele.NbColonnes, 0, kColonnesMax));
  std::size_t depart = 0;
  while (true) {
    if (modele.NbLignes == kLignesMax) {
      code = tout.substr(Decalage(tout, lignes) + depart);
      return Stop(Decalage(tout, lignes) + depart, "un tableau a au plus 511 lignes");
    }
    const std::size_t diese = lignes.find('#', depart);
    const std::string_view piece = lignes.substr(depart, diese == std::string_view::npos ? diese : diese - depart);
    LigneTableau& ligne = modele.Lignes[static_cast<std::size_t>(modele.NbLignes)];
    ++modele.NbLignes;
    Resultat<void> resultat = LireLigne(tout, piece, nbColonnes, ligne);
    if (!resultat || diese == std::string_view::npos) {
      code = tout.substr(resultat ? tout.size() : resultat.Erreur().octet);
      return resultat;
    }
    depart = diese + 1;
  }
}

Resultat<void> LireCodeTableau(std::string_view corps, ModeleTableau& modele, bool avecLignes) {
  const std::string_view tout = corps;
  std::string_view partie = corps;
  Resultat<void> resultat = LireTypeTableau(corps, modele);
  if (!resultat) return Decaler(resultat, Decalage(tout, partie));
  partie = corps;
  resultat = LireEnteteCode(corps, modele);
  if (!resultat || !avecLignes) return Decaler(resultat, Decalage(tout, partie));
  partie = corps;
  return Decaler(LireLignesCode(corps, modele), Decalage(tout, partie));
}

std::string EcrireCodeTableau(const ModeleTableau& modele, const DefautsCellule& defauts) {
  return Ecrire(modele, 0, nullptr, defauts);
}

std::string EcrireCodeTableau(const ModeleTableau& modele, int indice, PortMessages& messages,
                              const DefautsCellule& defauts) {
  return Ecrire(modele, indice, &messages, defauts);
}

void ReparerFormats(ModeleTableau& modele, const DefautsCellule& defauts) {
  const std::string policeDefaut = PoliceParDefaut(defauts);
  const auto reparer = [&](CelluleTableau& cellule) {
    if (cellule.Police.empty()) cellule.Police = policeDefaut;
    if (cellule.Cadre.empty()) cellule.Cadre = kCadreReparation;
  };
  const int nbLignes = std::clamp<int>(modele.NbLignes, 0, kLignesMax);
  const int nbColonnes = std::clamp<int>(modele.NbColonnes, 0, kColonnesMax);
  for (int l = 0; l < nbLignes; ++l) {
    LigneTableau& ligne = modele.Lignes[static_cast<std::size_t>(l)];
    for (int k = 0; k < nbColonnes; ++k) reparer(ligne.Cellules[static_cast<std::size_t>(k)]);
    reparer(ligne.Definition);
  }
}

bool EstCodeTableau(std::string_view code) {
  for (const std::string_view prefixe : {"tab", "culture", "cultper", "actlibr"}) {
    if (code.substr(0, prefixe.size()) == prefixe) return true;
  }
  return false;
}

// Lines are separated by "#", which no label holds: the count of "#" between
// the "(" that opens the lines and the stop gives the line.
std::string MessageLectureTableau(std::string_view texte, const ErreurLecture& erreur) {
  const std::size_t ouverture = texte.find('(');
  std::string endroit = "en-tête du tableau";
  if (ouverture != std::string_view::npos && erreur.octet > ouverture) {
    const std::size_t fin = static_cast<std::size_t>(std::min<uint64_t>(erreur.octet, texte.size()));
    const std::string_view lignes = texte.substr(ouverture, fin - ouverture);
    endroit = "ligne " + std::to_string(std::count(lignes.begin(), lignes.end(), '#') + 1) + " du tableau";
  }
  return "Le code du tableau ne peut être lu (" + endroit + ") : " + erreur.texte + ".";
}

}  // namespace norvane
