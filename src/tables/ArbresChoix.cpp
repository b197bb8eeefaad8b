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

void AjouterGroupe(std::vector<NoeudArbre>& noeuds, const Groupe& groupe, const char* parent = "") {
  noeuds.push_back({groupe.cle, groupe.texte, "rep", parent});
  for (const Feuille& f : groupe.feuilles) {
    noeuds.push_back({f.reference, f.texte != nullptr ? f.texte : f.reference, "puce", groupe.cle});
  }
}

std::vector<NoeudArbre> Arbre(const std::vector<Groupe>& groupes) {
  std::vector<NoeudArbre> noeuds;
  for (const Groupe& groupe : groupes) AjouterGroupe(noeuds, groupe);
  return noeuds;
}

// A tree whose groups nest: each group under the group keyed `parent`
// ("" at the top), listed after it.
struct GroupeImbrique {
  const char* parent;
  Groupe groupe;
};

std::vector<NoeudArbre> ArbreImbrique(const std::vector<GroupeImbrique>& groupes) {
  std::vector<NoeudArbre> noeuds;
  for (const auto& [parent, groupe] : groupes) AjouterGroupe(noeuds, groupe, parent);
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

// The records of a module's series file (AL<nn>AL.don) by theme. The leaves
// "Produit ", "Vente produit " and the like name no record of their own.
std::vector<NoeudArbre> ArbreSeriesActivite() {
  return ArbreImbrique({
      {"", {"inventaire", "Valeur d'inventaire",
            {{"Valeur d'inventaire femelle adulte", "@24"},
             {"Valeur d'inventaire mâle adulte", "@25"},
             {"Valeur d'inventaire renouvellement + 2 ans", "@26"},
             {"Valeur d'inventaire renouvellement 1 à 2 ans", "@27"},
             {"Valeur d'inventaire renouvellement - 1 an", "@28"},
             {"Valeur d'inventaire femelle - 1 an", "@49"},
             {"Valeur d'inventaire femelle 1 à 2 ans", "@50"},
             {"Valeur d'inventaire femelle 2 à 3 ans", "@51"},
             {"Valeur d'inventaire femelle + 3 ans", "@52"},
             {"Valeur d'inventaire mâle - 1 ans", "@100"},
             {"Valeur d'inventaire mâle 1 à 2 ans", "@101"},
             {"Valeur d'inventaire mâle 2 à 3 ans", "@102"},
             {"Valeur d'inventaire mâle + 3 ans", "@103"}}}},
      {"", {"effectif", "Effectifs", {}}},
      {"effectif", {"effrepro", "Reproducteurs",
                    {{"Achat renouvellement", "@15"},
                     {"Achat repro femelle", ""},
                     {"Achat repro mâle", "@322"},
                     {"Femelle eff. début", ""},
                     {"Mâle eff. début", ""},
                     {"Femelle eff. fin", ""},
                     {"Mâle eff. fin", "@323"},
                     {"Femelle eff. moyen", "@16"},
                     {"Stock + 2 ans renouv.", "@10"},
                     {"Stock 1 à 2 ans renouv.", "@11"},
                     {"Stock 1 an renouv.", "@12"},
                     {"Vente renouvellement", "@14"},
                     {"Vente repro femelles", "@17"},
                     {"Vente repro mâles", "@321"}}}},
      {"effectif", {"femelles", "Femelles",
                    {{"Achat ani. ", ""},
                     {"Total Achat", "@66"},
                     {"Stock -1 an", "@67"},
                     {"Stock 1 à 2 ans", "@68"},
                     {"Stock 2 à 3 ans", "@69"},
                     {"Stock +3 ans", "@70"},
                     {"Vente ani. ", ""},
                     {"Total Vente", "@81"}}}},
      {"effectif", {"effmales", "Mâles",
                    {{nullptr, "@117"}, {"Stock - 1 an", "@118"}, {nullptr, "@119"}, {nullptr, "@120"},
                     {nullptr, "@121"}, {nullptr, "@132"}}}},
      {"", {"ugb", "U.G.B",
            {{"UGB Reproducteurs", "@156"}, {"UGB Femelles", "@157"}, {"UGB Mâles", "@158"}, {"UGB", "@159"}}}},
      {"", {"criteres", "Critères techniques", {}}},
      {"criteres", {"product", "Productions", {{"Produit ", ""}}}},
      {"criteres", {"consorepro", "Conso Reproducteurs",
                    {{"Céréales kg / femelle", "@161"},
                     {"Aliments kg / femelle", "@162"},
                     {"Céréales kg / mâle", "@163"},
                     {"Aliments kg / mâle", "@164"}}}},
      {"criteres", {"consorenou", "Conso Renouvellement",
                    {{"Céréales ani. + 3 ans", "@332"},
                     {"Céréales ani. 1 à 2 ans", "@333"},
                     {"Céréales ani. - 1 an", "@334"},
                     {"Aliments 1 (kg)", "@341"},
                     {"Aliments 2 (kg)", "@345"}}}},
      {"criteres", {"consofemel", "Consommation Femelles",
                    {{"Céréales (kg)", "@174"}, {"Aliments - 1 an (kg)", "@175"}, {"Aliments Autres (kg)", "@176"}}}},
      {"criteres", {"consomales", "Consommation Mâles", {{nullptr, "@177"}, {nullptr, "@178"}, {nullptr, "@179"}}}},
      {"criteres", {"consototal", "Consommation Totale",
                    {{"Céréales (qx)", "@180"},
                     {"Aliments repro (kg)", "@181"},
                     {nullptr, "@182"},
                     {nullptr, "@183"},
                     {nullptr, "@184"},
                     {"Aliments autres (kg)", "@185"}}}},
      {"", {"marge", "Marge", {}}},
      {"marge", {"produit", "Produit",
                 {{"Ventes femelle", "@194"},
                  {"Ventes mâle", "@195"},
                  {"Achats reproducteurs", "@428"},
                  {"Vente femelles renouvellement", "@382"},
                  {"Achats femelles renouvellement", "@429"},
                  {"Produits - 1 an", "@197"},
                  {"Produits 1 à 2 ans", "@198"},
                  {"Produits 2 à 3 ans", "@199"},
                  {"Produits + 3 ans", "@200"},
                  {"Achats femelles", "@203"},
                  {"Achats mâles", "@204"},
                  {"Produits annexes", "@201"},
                  {"Quantité 1", "@368"},
                  {"Quantité 2", "@371"},
                  {"Quantité 3", "@373"},
                  {"Total primes", "@377"},
                  {"Produits", "@212"},
                  {"Produits / UGB", "@213"}}}},
      {"marge", {"charges", "Charges",
                 {{"Céréales", "@214"},
                  {"Aliments", "@215"},
                  {"Autres aliments (C.M.V)", "@216"},
                  {"Total aliments", "@217"},
                  {"Frais véto", "@218"},
                  {"Frais élevage", "@219"},
                  {nullptr, "@220"},
                  {"Charges / UGB", "@221"},
                  {nullptr, "@222"},
                  {"Marge / UGB", "@223"}}}},
      {"", {"prix", "Prix", {}}},
      {"prix", {"vente", "Vente",
                {{"Vente réformes (", "@247"},
                 {"Vente mâle (", "@249"},
                 {"Vente - 1 an (", "@254"},
                 {"Vente 1 à 2 ans (", "@255"},
                 {"Vente 2 à 3 ans (", "@256"}}}},
      {"prix", {"achat", "Achat",
                {{"Achat femelle (", "@248"},
                 {"Achat mâle (", "@250"},
                 {"Achat - 1 an (", "@251"},
                 {"Achat 1 à 2 ans (", "@252"},
                 {"Achat 2 à 3 ans (", "@253"}}}},
      {"prix", {"venteprod", "Vente Produits", {{"Vente produit ", ""}}}},
      {"prix", {"ventefemel", "Vente Femelle", {{"Vente femelle ", ""}}}},
      {"prix", {"achatfemel", "Achat Femelle", {{"Achat femelle ", ""}}}},
      {"prix", {"ventemale", "Vente Mâle", {{"Vente mâle ", ""}}}},
      {"prix", {"achatmale", "Achat Mâle", {{"Achat mâle ", ""}}}},
      {"prix", {"divers", "Divers",
                {{"Frais véto (", "@297"},
                 {"Frais d'élevage (", "@298"},
                 {"Autres aliments (CMV) (", "@299"},
                 {nullptr, "@300"},
                 {"Aliments 1", "@301"},
                 {"Aliments 2", "@302"},
                 {"Aliments - 1 an", "@303"},
                 {"Aliments autres", "@304"}}}},
  });
}

}  // namespace norvane
