#include "tables/FormulesTableau.h"

#include <algorithm>
#include <vector>

#include "frame/Encodage.h"
#include "frame/Texte.h"

namespace norvane {

namespace {

constexpr char kTitreRenumerotation[] = "Edition des tableaux";

bool EstOperateur(char c) {
  switch (c) {
    case '+': case '-': case '*': case '/': case '(': case ')': case '^': case '&': case '|': case ':': case ' ':
    case '\xB2':  // "²" in Windows-1252
      return true;
    default:
      return false;
  }
}

// End of the word that starts at `debut`: the next operator, or the end.
std::size_t FinDuMot(std::string_view texte, std::size_t debut) {
  while (debut < texte.size() && !EstOperateur(texte[debut])) ++debut;
  return debut;
}

bool EstNombre(std::string_view texte) {
  if (texte.empty()) return false;
  for (char c : texte) {
    if (c < '0' || c > '9') return false;
  }
  return true;
}

// The words "LG" of a formula, in order: where each starts, and for an
// "LG(" where its ")" is (npos when missing).
struct MotLG {
  std::size_t position;
  bool serie;
  std::size_t fermante;
};

std::vector<MotLG> MotsLG(std::string_view formule) {
  std::vector<MotLG> mots;
  std::size_t position = 0;
  while ((position = formule.find("LG", position)) != std::string_view::npos) {
    const bool serie = position + 2 < formule.size() && formule[position + 2] == '(';
    const std::size_t fermante = serie ? formule.find(')', position + 3) : std::string_view::npos;
    mots.push_back({position, serie, fermante});
    if (serie && fermante == std::string_view::npos) break;
    position = serie ? fermante + 1 : position + 2;
  }
  return mots;
}

// "", "2e ", "3e "...: the rank of an LG as the messages name it.
std::string Rang(std::size_t indice) { return indice == 0 ? std::string() : std::to_string(indice + 1) + "e "; }

RefusFormule Erronee(std::string texte) { return {"Formule erronée.", std::move(texte)}; }

}  // namespace

std::optional<RefusFormule> ValiderFormule(std::string_view formule, int nbLignes) {
  if (EstBlanc(formule)) return RefusFormule{"Validation impossible.", "Vous devez saisir une formule !"};
  const std::vector<MotLG> mots = MotsLG(formule);
  for (std::size_t i = 0; i < mots.size(); ++i) {
    if (!mots[i].serie) continue;
    if (mots[i].fermante == std::string_view::npos) {
      return Erronee("Il manque la parenthèse fermante après le code du " + Rang(i) + "LG !");
    }
    const std::string_view dedans = formule.substr(mots[i].position + 3, mots[i].fermante - mots[i].position - 3);
    if (dedans.find('-') == std::string_view::npos) {
      return Erronee("Concernant le code entre parenthèse du " + Rang(i) +
                     "LG, il manque le tiret entre le nom du fichier et le numéro d'enregistrement !");
    }
  }
  for (const MotLG& mot : mots) {
    if (mot.serie) continue;
    const std::string_view numero = formule.substr(mot.position + 2, FinDuMot(formule, mot.position + 2) - mot.position - 2);
    if (!EstNombre(numero)) return Erronee("Il manque un numéro de ligne après le dernier LG !");
    const int32_t ligne = EntierDe(numero);
    if (ligne < 1 || ligne > nbLignes) {
      return Erronee("Le numéro de ligne \"" + Cp1252VersUtf8(numero) + "\" suivant le LG est incorrect !");
    }
  }
  return std::nullopt;
}

std::optional<RefusFormule> RefuserLignesHorsTableau(std::string_view formule) {
  for (const MotLG& mot : MotsLG(formule)) {
    if (mot.serie) continue;
    return Erronee(
        "Votre formule contient le code LGn qui désigne une ligne n de tableau. Vous ne pouvez utiliser ce type de "
        "code ici, utilisez la formulation LG<nomFic-numEnreg>en sélectionnant vos séries de données directement "
        "dans l'arbre de choix ci-contre.");
  }
  return std::nullopt;
}

namespace {

// The formula of a total definition: behind "totalX:", trimmed, without its
// ":decimals:display" tail when it ends with one.
std::string FormuleDeTotal(std::string_view definition) {
  std::string formule = Trim(definition.substr(std::min<std::size_t>(7, definition.size())));
  const std::size_t n = formule.size();
  if (n > 4 && formule[n - 4] == ':' && formule[n - 2] == ':' && EstNombre(formule.substr(n - 3, 1)) &&
      EstNombre(formule.substr(n - 1, 1))) {
    formule.resize(n - 4);
  }
  return formule;
}

bool LigneDefinie(const ModeleTableau& modele, int32_t numero) {
  return numero >= 1 && numero <= kLignesMax && numero <= static_cast<int>(modele.Lignes.size()) &&
         !modele.Lignes[static_cast<std::size_t>(numero - 1)].Definition.Texte.empty();
}

}  // namespace

void RenumeroterFormule(ModeleTableau& modele, int pivot, int ligne, bool suppression, PortMessages& messages) {
  if (ligne < 1 || ligne > static_cast<int>(modele.Lignes.size())) return;
  std::string& definition = modele.Lignes[static_cast<std::size_t>(ligne - 1)].Definition.Texte;
  if (!definition.starts_with("total")) return;
  std::string formule = FormuleDeTotal(definition);
  const std::string numeroLigne = std::to_string(ligne);
  const auto effacer = [&](const std::string& texte) {
    definition.clear();
    messages.AfficherMessage("GestTableau", kTitreRenumerotation, texte, "", "");
  };
  bool change = false;
  std::size_t position = 0;
  while ((position = formule.find("LG", position)) != std::string::npos) {
    const std::size_t debut = position + 2;
    if (debut < formule.size() && formule[debut] == '(') {
      const std::size_t fermante = formule.find(')', debut);
      if (fermante == std::string::npos) break;
      position = fermante + 1;
      continue;
    }
    const std::size_t fin = FinDuMot(formule, debut);
    const int32_t lu = EntierDe(std::string_view(formule).substr(debut, fin - debut));
    int32_t numero = lu;
    if (numero > pivot) {
      numero += suppression ? -1 : 1;
      change = true;
    }
    if (numero == 0) return;
    if (!LigneDefinie(modele, numero)) {
      effacer("La formule de la ligne n°" + numeroLigne + " est à ré-écrire !\nFormule non valide : " +
              Cp1252VersUtf8(formule));
      return;
    }
    if (suppression && lu == pivot) {
      effacer("La ligne supprimée était totalisée dans la ligne n°" + numeroLigne + ".\nLa formule de la ligne n°" +
              numeroLigne + " est donc à ré-écrire !\nFormule invalide : " + Cp1252VersUtf8(formule));
      return;
    }
    const std::string texteNumero = std::to_string(numero);
    formule.replace(debut, fin - debut, texteNumero);
    position = debut + texteNumero.size();
  }
  if (!change) return;
  definition = definition.substr(0, 7) + formule;
  messages.AfficherMessage("GestTableau", kTitreRenumerotation,
                           "La formule de total de la ligne n°" + numeroLigne +
                               " a été mise à jour avec la nouvelle numérotation des lignes.\nFormule mise à jour : " +
                               Cp1252VersUtf8(formule),
                           "", "seule");
}

}  // namespace norvane
