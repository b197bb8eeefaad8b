#include "graphs/DessinGraphique.h"

namespace norvane {

PortDessinGraphique::~PortDessinGraphique() = default;

double GrilleGraphique::Valeur(int ligne, int colonne) const {
  if (ligne < 0 || colonne < 0 || ligne >= static_cast<int>(Valeurs.size())) return 0;
  const auto& rang = Valeurs[static_cast<std::size_t>(ligne)];
  return colonne < static_cast<int>(rang.size()) ? rang[static_cast<std::size_t>(colonne)] : 0;
}

void GrilleGraphique::Dimensionner(int lignes, int colonnes) {
  const auto l = static_cast<std::size_t>(lignes < 0 ? 0 : lignes);
  const auto c = static_cast<std::size_t>(colonnes < 0 ? 0 : colonnes);
  LibellesLignes.assign(l, std::string());
  LibellesColonnes.assign(c, std::string());
  Valeurs.assign(l, std::vector<double>(c, 0.0));
}

void CompleterCouleurs(ModeleGraphique& modele, const std::function<double()>& hasard) {
  const auto composante = [&hasard] { return static_cast<int16_t>(static_cast<int>(hasard() * 255.0 + 100.0)); };
  for (int k = 0; k < modele.SeriesUtilisees(); ++k) {
    SerieGraphique& serie = modele.Series[static_cast<std::size_t>(k)];
    if (!serie.SansCouleur()) continue;
    serie.Rouge = composante();
    serie.Vert = composante();
    serie.Bleu = composante();
  }
}

}  // namespace norvane
