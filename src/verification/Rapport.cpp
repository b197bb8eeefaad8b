#include "verification/Rapport.h"

#include <cstdio>

#include "verification/VerificationModele.h"

namespace norvane {
namespace {

std::string Place(const PlaceCode& p) {
  return "ligne " + std::to_string(p.ligne) + ", colonne " + std::to_string(p.colonne) + " (page " +
         std::to_string(p.page) + ", paragraphe " + std::to_string(p.paragraphe) + ")";
}

// A value as the terminal shows it: a picture or a table runs to thousands
// of characters, of which the head tells enough.
std::string ValeurCourte(const std::string& valeur) {
  constexpr std::size_t kLongueurMontree = 160;
  return valeur.size() <= kLongueurMontree ? valeur : valeur.substr(0, kLongueurMontree) + "…";
}

std::string Bloc(std::size_t n, const CodeVerifie& c, bool avecValeurs) {
  std::string bloc = "Code n°" + std::to_string(n) + " — " + Place(c.place) + "\n";
  bloc += "  Code : " + c.code + "\n";
  if (!c.sens.empty()) bloc += "  Sens : " + c.sens + "\n";
  if (avecValeurs) bloc += "  Valeur : " + ValeurCourte(c.valeur) + "\n";
  bloc += "  Statut : " + std::string(NomStatut(c.statut));
  bloc += c.statut == Statut::Valide ? "\n" : " — " + c.message + "\n";
  return bloc + "\n";
}

// The codes of one status, each with its place and its message.
std::string Liste(const std::vector<CodeVerifie>& codes, Statut statut, const char* titre) {
  std::string liste;
  for (const CodeVerifie& c : codes) {
    if (c.statut == statut) liste += "  " + Place(c.place) + " : " + c.code + "\n    " + c.message + "\n";
  }
  return liste.empty() ? liste : titre + liste;
}

}  // namespace

std::string RapportTexte(const std::string& modele, const std::vector<CodeVerifie>& codes, bool avecValeurs) {
  std::string texte = "Vérification du modèle " + modele + "\n\n";
  for (std::size_t i = 0; i < codes.size(); ++i) texte += Bloc(i + 1, codes[i], avecValeurs);
  texte += std::to_string(codes.size()) + " code(s) vérifié(s), " +
           std::to_string(Nombre(codes, Statut::Erreur)) + " erreur(s), " +
           std::to_string(Nombre(codes, Statut::Avertissement)) + " avertissement(s).\n";
  return texte + Liste(codes, Statut::Erreur, "Erreurs :\n") + Liste(codes, Statut::Avertissement, "Avertissements :\n");
}

const char* NomStatut(Statut statut) {
  switch (statut) {
    case Statut::Erreur: return "erreur";
    case Statut::Avertissement: return "avertissement";
    case Statut::Valide: break;
  }
  return "valide";
}

std::string ChaineJson(const std::string& texte) {
  std::string r = "\"";
  for (const char c : texte) {
    switch (c) {
      case '"': r += "\\\""; break;
      case '\\': r += "\\\\"; break;
      case '\n': r += "\\n"; break;
      case '\r': r += "\\r"; break;
      case '\t': r += "\\t"; break;
      default:
        if (static_cast<unsigned char>(c) < 0x20) {
          char u[8];
          std::snprintf(u, sizeof u, "\\u%04x", static_cast<unsigned>(c));
          r += u;
        } else {
          r += c;
        }
    }
  }
  return r + "\"";
}

std::string RapportJson(const std::vector<CodeVerifie>& codes, bool avecValeurs) {
  std::string json = "[";
  for (std::size_t i = 0; i < codes.size(); ++i) {
    const CodeVerifie& c = codes[i];
    json += i == 0 ? "\n" : ",\n";
    json += "  {\"ligne\": " + std::to_string(c.place.ligne) + ", \"colonne\": " + std::to_string(c.place.colonne) +
            ", \"page\": " + std::to_string(c.place.page) + ", \"paragraphe\": " + std::to_string(c.place.paragraphe) +
            ", \"code\": " + ChaineJson(c.code) + ", \"sens\": " + ChaineJson(c.sens) +
            ", \"statut\": " + ChaineJson(NomStatut(c.statut)) + ", \"message\": " + ChaineJson(c.message);
    if (avecValeurs) json += ", \"valeur\": " + ChaineJson(c.valeur);
    json += "}";
  }
  return json + (codes.empty() ? "]\n" : "\n]\n");
}

}  // namespace norvane
