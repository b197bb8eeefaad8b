#include "tables/ArbresChoix.h"

#include <utility>

namespace norvane {

namespace {

struct Feuille {
  const char* texte;      // nullptr: the reference stands as its text
  const char* reference;  // "": not known
};

struct Groupe {
  const char* cle;
  const char* texte;
  std::vector<Feuille> feuilles;
};

void AjouterGroupe(std::vector<NoeudArbre>& noeuds, const Groupe& groupe) {
  noeuds.push_back({groupe.cle, groupe.texte, "rep", ""});
  for (const Feuille& f : groupe.feuilles) {
    noeuds.push_back({f.reference, f.texte != nullptr ? f.texte : f.reference, "puce", groupe.cle});
  }
}

std::vector<NoeudArbre> Arbre(const std::vector<Groupe>& groupes) {
  std::vector<NoeudArbre> noeuds;
  for (const Groupe& groupe : groupes) AjouterGroupe(noeuds, groupe);
  return noeuds;
}

// A flat list: leaves at the top of the tree.
std::vector<NoeudArbre> Liste(const std::vector<Feuille>& feuilles) {
  std::vector<NoeudArbre> noeuds;
  for (const Feuille& f : feuilles) noeuds.push_back({f.reference, f.texte != nullptr ? f.texte : f.reference, "puce", ""});
  return noeuds;
}

}  // namespace

std::vector<NoeudArbre> ArbreTablesGeneriques() {
  std::vector<NoeudArbre> noeuds;
  // Crop items are the value names of a crop block.
  AjouterGroupe(noeuds, {"cultu", "Cultures", {}});
  for (NoeudArbre valeur : ArbreValeursCultures()) {
    valeur.cleParent = "cultu";
    noeuds.push_back(std::move(valeur));
  }
  const std::vector<Groupe> autres = {
      {"cultp", "Cultures pérennes", {{"Assolement", "AssolemPer"}}},
      {"imemp", "Immos - Emprunts",
       {{"Investissements", "inve1"},
        {"Investissements - Financements", "inves"},
        {"Plan de financement - PDE Cerfa", "finan"},
        {"Immobilisations", "immo0"},
        {"Subventions", "subv0"},
        {"Emprunts", "empt0"},
        {"Emprunts - PDE Cerfa", "empr2"},
        {"Emprunts du JA - PDE Cerfa", "empr3"}}},
      {"prime", "Récapitulatifs primes",
       {{"Primes cultures de vente", "pricv"},
        {"Primes cultures fourragères", "pricf"},
        {"Primes cultures maraîchères", "pricm"}}},
  };
  for (const Groupe& groupe : autres) AjouterGroupe(noeuds, groupe);
  return noeuds;
}

std::string ArticleAvecVariante(std::string_view article, int indice) {
  static const std::pair<std::string_view, std::string_view> kAnciennes[] = {
      {"immos", "immo0"}, {"subvt", "subv0"}, {"emprt", "empt0"}};
  std::string cle(article);
  for (const auto& [ancienne, nouvelle] : kAnciennes) {
    if (cle == ancienne) cle = nouvelle;
  }
  if (indice < 0 || indice > 2 || cle.size() != 5) return cle;
  const std::string_view racine = std::string_view(cle).substr(0, 4);
  if (racine == "immo" || racine == "subv" || racine == "empt") {
    cle.back() = static_cast<char>('0' + indice);
  } else if (racine == "fina") {
    cle.back() = "nap"[indice];
  }
  return cle;
}

std::string DefinitionPredefinie(std::string_view groupe, std::string_view article, int decimales, int affichage) {
  return std::string(groupe) + ":" + std::string(article) + ":" + std::to_string(decimales) + ":" +
         std::to_string(affichage);
}

std::string LibellePredefini(std::string_view groupe, std::string_view article) {
  return std::string(groupe) + " : " + std::string(article);
}

std::vector<NoeudArbre> ArbreValeursCultures() {
  return Liste({{"Rendement", "Rendement"},
                {"Assolement", "Assolement"},
                {"Quantité récoltée", "QteReColte"},
                {"Quantité prélevée", "QtePreleve"},
                {"Prix unitaire", "PrixUnitaire"},
                {"Autre produit", "AutreProduit"},
                {"Prime et Divers", "PrimeEtDiv"},
                {"Produit unitaire", "ProduitUnit"},
                {"Charge unitaire", "ChargeUnit"},
                {"Marge brute unitaire", "MargeUnit"},
                {"Marge brute globale", "MargeGlobale"},
                {"Stock fin", "StockFin"},
                {"Quantité vendue", "QteVendue"},
                {"Quantité achat", "QteAchat"},
                {"Variation stock", "Varstock"},
                {"Valeur stock", "ValeurStock"},
                {"Prix moyen", "PrixMoyen"},
                {"Prix vente", "PrixVente"},
                {"Prix achat", "PrixAchat"},
                {"Prix cession", "PrixCession"},
                {"Variation d'inventaire", "VarInv"},
                {"Engrais", "Engrais"},
                {"Semence", "Semence"},
                {"Produits traitements", "Traitement"},
                {"Travaux / entreprise", "Travaux"},
                {"Taxes et cot. prof.", "Taxe1"},
                {"Autres charges", "AutreCharge"},
                {"Créance", "Creance"}});
}

std::vector<NoeudArbre> ArbreSeriesCulture() {
  // The first records of a crop file, in their order: 1 surface to 10 work.
  return Liste({{"Surface", "@1"},
                {"Rendement", "@2"},
                {"Quantité récoltée /qx", "@3"},
                {"Prix unitaire", "@4"},
                {"Prix de cession", "@4cession"},
                {"Primes et divers", "@5"},
                {"Produit /ha", "@6"},
                {"Engrais", "@7"},
                {"Semences", "@8"},
                {"Produits traitements", "@9"},
                {"Travaux / entreprise", "@10"},
                {"Taxes et cot. prof.", "@11"},
                {"Autres charges", "@12"},
                {"Charges /ha", "@13"},
                {"Marge ou coût net opé. /ha", "@14"},
                {"Marge globale ou coût net opé.", "@15"},
                {"Prix de stock", "@18"},
                {"Quantité de stock début", "@19"},
                {"Quantité vendue", "@21"},
                {"Prélevé + achat", "@24"},
                {"Variation inventaire", "@25"},
                {"Prix 1", "@27"},
                {"Total primes", "@65"},
                {"Produit reçu (cession)", "@17x22/1"},
                {"Produit récolte", "@6-5"},
                {"Total Charges proportionnelles", "@13x1"},
                {"Valeur de stock début", "@18x19"},
                {"Primes / divers", "@65/1"}});
}

std::vector<NoeudArbre> ArbreSeriesCulturePerenne() {
  return Arbre({
      {"Caractéristiques", "Caractéristiques",
       {{"Quantité produite", ""}, {"Rendement /unité", "@5/1"}, {"Rendement moyen", "@27t"}, {"Prix moyen", ""}}},
      {"Produits", "Produits",
       {{"Production vendue", ""},
        {"Quantité vendue", "@63+65+67"},
        {"Production cédée", "@11"},
        {"Variation inventaire", "@42t"},
        {"Primes et sous produits", "@12"},
        {nullptr, "@13"},
        {"Produit", "@14"}}},
      {"Charges", "Charges",
       {{"Engrais amendement", "@15"},
        {"Plants remplacement", "@16"},
        {"Produits traitements", "@17"},
        {"Travaux par tiers", "@18"},
        {"Taxes et cot. prof.", "@19"},
        {"Entretien irrigation", "@20"},
        {"Eau énergie", "@21"},
        {"Assurance", "@22"},
        {"Assurances /Unité", "@22/1"},
        {"Fournitures", "@23"},
        {"Entretien palissage", "@24"},
        {"Fournitures, entretien palissage", "@23+24/1"},
        {"Main d'oeuvre", "@58"},
        {"Amortissements", "@35"},
        {nullptr, "@26"},
        {nullptr, "@27"},
        {"Engrais, amendements, plants, traitements", "@15+16+17/1"},
        {"Travaux par tiers, taxes et cotisations", "@18+19/1"},
        {"Entretien, irrigation, eau, énergie", "@20+21/1"}}},
      {"Marge", "Marge",
       {{"Marge brute unitaire", "@28+58+35/1"},
        {"Marge brute globale", "@28+58+35"},
        {"Marge semi-directe", "@28"},
        {nullptr, "@29"}}},
      {"Surface", "Surface",
       {{"Surface occupée", ""},
        {"Augmentation", ""},
        {"Diminution", ""},
        {"Arrachage", ""},
        {"dont propriété", "@89"},
        {"dont métayage gratuit", "@90"},
        {"dont métayage espèce", "@91"},
        {"dont métayage nature", "@92"},
        {"dont fermage gratuit", "@93"},
        {"dont fermage espèce", "@94"}}},
      {"Quantité", "Quantité",
       {{"Quantité utilisable", "@63+65+67+69"},
        {"Qté au prix 1", "@63"},
        {"Prix 1", "@64"},
        {"Vente 1", ""},
        {"Qté au prix 2", "@65"},
        {"Prix 2", "@66"},
        {"Vente 2", ""},
        {"Qté au prix 3", "@67"},
        {"Prix 3", "@68"},
        {"Vente 3", ""},
        {nullptr, "@10"},
        {"Qté cédée", "@69"},
        {"Prix cession", "@70"}}},
      {"Gestion stock", "Gestion stock",
       {{"Qté stock début", "@31t"},
        {"Qté stock fin", "@39t"},
        {"Valeur stock", "@40t"},
        {"Bilan stock", "@41t"},
        {"Stock début (valeur)", "@82a-1"}}},
      {"Atelier de transformation", "Atelier de transformation",
       {{"Qté à transformer", "@43t"},
        {"Coef. transformation", "@44t"},
        {"Taux de perte", "@45t"},
        {"Qté transformée", "@46t"},
        {nullptr, "@59t"}, {nullptr, "@60t"}, {nullptr, "@61t"}, {nullptr, "@62t"}, {nullptr, "@63t"},
        {nullptr, "@64t"}, {nullptr, "@65t"}, {nullptr, "@66t"}, {nullptr, "@67t"},
        {"Total vente", "@61+64+67t"},
        {nullptr, "@38t"},
        {"Total cession", "@68t"},
        {nullptr, "@50t"},
        {nullptr, "@55t"},
        {nullptr, "@56t"},
        {nullptr, "@84a-1"},
        {"Variation stock (valeur)", "@85"},
        {nullptr, "@57t"},
        {"VI stock", "@58t"},
        {"Rendement moyen /unité", "@74/69"},
        {"Prix de vente moyen", "@75-85+87/52t+53t+54t"}}},
      {"Charges de transformation", "Charges de transformation",
       {{"Matière sèche", "@76"},
        {"Prestation", "@77"},
        {"Commerciale", "@78x86/100/46t"},
        {"Distribution", "@79x86/100/46t"},
        {"Divers", "@80+81/46t"},
        {"Produit reçu (cession)", "@69x70/46t"}}},
      {"Marge brute de transformation", "Marge brute de transformation",
       {{nullptr, "@69t"},
        {"Produit transfo.", "@70t"},
        {"Produit transfo. /U", "@70/46t"},
        {"Charge transfo.", "@77t"},
        {"Charge transfo. /U", "@77/46t"},
        {nullptr, "@78t"},
        {"Marge /U", "@78/46t"}}},
      {"Investissements", "Investissements",
       {{"Implantation", "@36"}, {nullptr, "@37"}, {nullptr, "@38"}, {"Total investissements", "@40"}}},
      {"Subventions", "Subventions", {{nullptr, "@39"}, {nullptr, "@30"}, {nullptr, "@31"}}},
  });
}

}  // namespace norvane
