#include "construction/LectureJson.h"

#include <cmath>
#include <limits>

#include "frame/Encodage.h"
#include "frame/Texte.h"

namespace norvane::construction {

const Json& ObjetVide() {
  static const Json vide = Json::object();
  return vide;
}

std::string LargeurVerifiee(std::string texte, std::size_t largeur, const std::string& lieu, Journal& journal) {
  if (largeur > 0 && texte.size() > largeur) {
    journal.avertissements.push_back(lieu + " : « " + Cp1252VersUtf8(texte) + " » dépasse " + std::to_string(largeur) +
                                     " caractères, la fin est coupée");
  }
  return texte;
}

std::string TexteEtude(const std::string& utf8, std::size_t largeur, const std::string& lieu, Journal& journal) {
  const std::string texte = Utf8VersCp1252(RemplacerTout(utf8, "{racine}", journal.racine));
  if (largeur > 0 && texte.size() > largeur && utf8.find("{racine}") != std::string::npos) {
    Journal ailleurs;
    LargeurVerifiee(texte, largeur, lieu, ailleurs);
    journal.remarques.push_back(ailleurs.avertissements.front() + " (racine de l'installation trop longue)");
    return texte;
  }
  return LargeurVerifiee(texte, largeur, lieu, journal);
}

ObjetJson::ObjetJson(const Json& valeur, std::string lieu, Journal& journal)
    : valeur_(valeur), lieu_(std::move(lieu)), journal_(journal) {
  if (!valeur_.is_object()) throw ErreurDescription(lieu_ + " : un objet JSON { ... } est attendu");
}

bool ObjetJson::A(const char* cle) const { return valeur_.contains(cle); }

const Json* ObjetJson::Valeur(const char* cle) {
  auto it = valeur_.find(cle);
  if (it == valeur_.end()) return nullptr;
  lues_.insert(cle);
  return &*it;
}

void ObjetJson::Erreur(const std::string& cle, const std::string& attendu) const {
  throw ErreurDescription(lieu_ + " : « " + cle + " » doit être " + attendu);
}

std::string ObjetJson::Texte(const char* cle, std::size_t largeur) {
  const Json* v = Valeur(cle);
  if (v == nullptr || v->is_null()) return {};
  if (v->is_number()) return TexteEtude(v->dump(), largeur, lieu_ + ", " + cle, journal_);
  if (!v->is_string()) Erreur(cle, "un texte");
  return TexteEtude(v->get<std::string>(), largeur, lieu_ + ", " + cle, journal_);
}

std::string ObjetJson::TexteUtf8(const char* cle) {
  const Json* v = Valeur(cle);
  if (v == nullptr || v->is_null()) return {};
  if (!v->is_string()) Erreur(cle, "un texte");
  return v->get<std::string>();
}

double ObjetJson::Double(const char* cle, double parDefaut) {
  const Json* v = Valeur(cle);
  if (v == nullptr || v->is_null()) return parDefaut;
  if (v->is_boolean()) return v->get<bool>() ? -1 : 0;
  if (!v->is_number()) Erreur(cle, "un nombre");
  return v->get<double>();
}

float ObjetJson::Flottant(const char* cle, float parDefaut) { return static_cast<float>(Double(cle, parDefaut)); }

int32_t ObjetJson::Entier32(const char* cle, int32_t parDefaut) {
  const double v = Double(cle, parDefaut);
  if (v != std::floor(v) || v < std::numeric_limits<int32_t>::min() || v > std::numeric_limits<int32_t>::max()) {
    Erreur(cle, "un entier sur 32 bits");
  }
  return static_cast<int32_t>(v);
}

int16_t ObjetJson::Entier16(const char* cle, int16_t parDefaut) {
  const int32_t v = Entier32(cle, parDefaut);
  if (v < -32768 || v > 32767) Erreur(cle, "un entier sur 16 bits");
  return static_cast<int16_t>(v);
}

bool ObjetJson::Booleen(const char* cle, bool parDefaut) {
  const Json* v = Valeur(cle);
  if (v == nullptr || v->is_null()) return parDefaut;
  if (v->is_boolean()) return v->get<bool>();
  if (v->is_number()) return v->get<double>() != 0;
  Erreur(cle, "vrai ou faux (true, false)");
}

void ObjetJson::RemplirFlottants(const char* cle, float* valeurs, std::size_t nombre) {
  const Json* v = Valeur(cle);
  if (v == nullptr || v->is_null()) return;
  if (!v->is_array()) Erreur(cle, "une liste de nombres");
  if (v->size() > nombre) {
    journal_.avertissements.push_back(lieu_ + ", " + cle + " : " + std::to_string(v->size()) + " valeurs, seules les " +
                                      std::to_string(nombre) + " premières sont écrites");
  }
  for (std::size_t i = 0; i < std::min(nombre, v->size()); ++i) {
    if (!(*v)[i].is_number()) Erreur(cle, "une liste de nombres");
    valeurs[i] = (*v)[i].get<float>();
  }
}

std::vector<const Json*> ObjetJson::Elements(const char* cle) {
  std::vector<const Json*> elements;
  const Json* v = Valeur(cle);
  if (v == nullptr || v->is_null()) return elements;
  if (!v->is_array()) Erreur(cle, "une liste [ ... ]");
  for (const Json& element : *v) elements.push_back(&element);
  return elements;
}

void ObjetJson::Terminer() {
  for (const auto& [cle, valeur] : valeur_.items()) {
    if (!lues_.count(cle) && !CommencePar(cle, "_")) {
      journal_.avertissements.push_back(lieu_ + " : clé « " + cle + " » inconnue, ignorée");
    }
  }
}

}  // namespace norvane::construction
