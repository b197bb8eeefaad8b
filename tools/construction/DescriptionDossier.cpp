#include <cmath>
#include <filesystem>

#include "construction/DescriptionInterne.h"
#include "construction/FichiersEtude.h"
#include "construction/FichiersIni.h"
#include "construction/FichiersTableaux.h"

namespace norvane::construction {
namespace {

void PersonneDe(const Json& description, const std::string& lieu, Journal& journal, DossierGeneral& d,
                std::size_t slot) {
  ObjetJson o(description, lieu, journal);
  d.NomAssocie[slot] = o.Texte("Nom", 30);
  d.AssocieJA[slot] = o.Booleen("JA") ? 1 : 0;
  d.DateNaissance[slot] = o.Texte("DateNaissance", 10);
  d.Situation[slot] = o.Texte("Situation", 15);
  o.Terminer();
}

std::string DescriptionProjetDe(ObjetJson& o) {
  const Json* v = o.Valeur("DescriptionProjet");
  if (v == nullptr || !v->is_array()) return o.Texte("DescriptionProjet", 500);
  std::string lignes;
  for (const Json& ligne : *v) {
    if (!ligne.is_string()) throw ErreurDescription(o.Lieu() + " : « DescriptionProjet » : une liste de textes");
    // The parent product's multi-line box keeps its lines apart with CR LF.
    lignes += (lignes.empty() ? "" : "\r\n") + ligne.get<std::string>();
  }
  return TexteEtude(lignes, 500, o.Lieu() + ", DescriptionProjet", o.Notes());
}

void AssociesDe(ObjetJson& o, DossierGeneral& d) {
  if (const Json* exploitant = o.Valeur("Exploitant"))
    PersonneDe(*exploitant, o.Lieu() + ", Exploitant", o.Notes(), d, 0);
  const auto associes = o.Elements("Associes");
  if (associes.size() > 10)
    o.Notes().avertissements.push_back(o.Lieu() + " : plus de 10 associés, les suivants sont ignorés");
  for (std::size_t i = 0; i < std::min<std::size_t>(associes.size(), 10); ++i) {
    PersonneDe(*associes[i], o.Lieu() + ", associé " + std::to_string(i + 1), o.Notes(), d, i + 1);
  }
  d.NbAssocies = o.Entier16("NbAssocies", static_cast<int16_t>(std::min<std::size_t>(associes.size(), 10)));
}

void ModeComDe(ObjetJson& o, DossierGeneral& d) {
  const auto produits = o.Elements("ModeCom");
  if (produits.size() > 6)
    o.Notes().avertissements.push_back(o.Lieu() + " : plus de 6 produits, les suivants sont ignorés");
  for (std::size_t i = 0; i < std::min<std::size_t>(produits.size(), 6); ++i) {
    ObjetJson p(*produits[i], o.Lieu() + ", produit " + std::to_string(i + 1), o.Notes());
    d.ModeCom[i + 1] = {p.Texte("Produit", 40), p.Texte("Mode", 40)};
    p.Terminer();
  }
}

std::string Chemin(const std::string& dossier, const std::string& nom) {
  return (std::filesystem::path(dossier) / nom).string();
}

std::string Nombre(float valeur, const std::string& lieu, Journal& journal) {
  if (valeur != std::floor(valeur)) journal.avertissements.push_back(lieu + " : numéro non entier, arrondi");
  return std::to_string(static_cast<long>(std::lround(valeur)));
}

void EcrireSeriesDe(const Json* description, const std::string& chemin, const std::string& lieu, const Modeles& modeles,
                    Journal& journal) {
  if (description != nullptr) EcrireSeries(chemin, SeriesDe(*description, lieu, modeles, journal));
}

void Cultures(ObjetJson& o, const std::string& dossier, const Modeles& modeles) {
  std::vector<CultureAnnuelle> cultures;
  for (const Json* element : o.Elements("cultures")) {
    ObjetJson c(*element, o.Lieu() + ", culture " + std::to_string(cultures.size() + 1), o.Notes());
    CultureAnnuelle culture;
    culture.NumCulture = c.Flottant("NumCulture", static_cast<float>(cultures.size() + 1));
    culture.NomCulture = c.Texte("NomCulture", 23);
    const std::string unite = c.Texte("UniteRendement", 1);
    culture.UniteRendement = unite.empty() ? '0' : unite[0];
    culture.Derobee = c.Entier16("Derobee");
    culture.TypeCulture = c.Entier16("TypeCulture", 1);
    if (const Json* valeurs = c.Valeur("valeurs")) {
      ObjetJson v(*valeurs, c.Lieu() + ", valeurs", o.Notes());
      for (const TableauCulture& tableau : kTableauxCulture) {
        if (v.A(tableau.nom)) culture.Valeurs[tableau.nom] = v.Flottants<11>(tableau.nom);
      }
      v.Terminer();
    }
    const std::string fichier = "Cult" + Nombre(culture.NumCulture, c.Lieu(), o.Notes()) + ".don";
    EcrireSeriesDe(c.Valeur("series"), Chemin(dossier, fichier), c.Lieu() + ", " + fichier, modeles, o.Notes());
    c.Terminer();
    cultures.push_back(std::move(culture));
  }
  EcrireCulturesAnnuelles(Chemin(dossier, "cult.clt"), cultures);
}

void CulturesPerennes(ObjetJson& o, const std::string& dossier, const Modeles& modeles) {
  std::vector<CulturePerenne> cultures;
  for (const Json* element : o.Elements("cultures_perennes")) {
    ObjetJson c(*element, o.Lieu() + ", culture pérenne " + std::to_string(cultures.size() + 1), o.Notes());
    CulturePerenne culture;
    culture.NumCultureP = c.Entier16("NumCultureP", static_cast<int16_t>(cultures.size() + 1));
    culture.NomCultureP = c.Texte("NomCultureP", 30);
    culture.TypeCultureP = c.Entier16("TypeCultureP", 1);
    culture.UniteSurface = c.Entier16("UniteSurface");
    culture.UniteRendementP = c.Entier32("UniteRendementP");
    culture.PleineProduction = c.Entier16("PleineProduction");
    culture.DureeAmortissement = c.Entier16("DureeAmortissement");
    const std::string base = "CltP" + std::to_string(culture.NumCultureP);
    EcrireSeriesDe(c.Valeur("series"), Chemin(dossier, base + ".don"), c.Lieu() + ", " + base + ".don", modeles,
                   o.Notes());
    EcrireSeriesDe(c.Valeur("series_transformation"), Chemin(dossier, base + "t.don"), c.Lieu() + ", " + base + "t.don",
                   modeles, o.Notes());
    c.Terminer();
    cultures.push_back(std::move(culture));
  }
  EcrireCulturesPerennes(Chemin(dossier, "CltP.cpD"), cultures);
}

Immobilisation ImmobilisationDe(ObjetJson& i, const char* cleDate) {
  Immobilisation r;
  r.Nouveau = i.Flottant("Nouveau");
  r.TypeImmo = i.Flottant("TypeImmo");
  r.Libelle = i.Texte("Libelle", 40);
  r.DateRealisation = i.Texte("DateRealisation", 10);
  r.Montant = i.Flottant("Montant");
  r.Duree = i.Flottant("Duree");
  r.TypeAmort = i.Flottant("TypeAmort");
  r.DateRevente = i.Texte(cleDate, 10);
  r.MontantRevente = i.Flottant("MontantRevente");
  r.NumEntreePlan = i.Flottant("NumEntreePlan");
  r.Differe = i.Flottant("Differe");
  r.LSM = i.Flottant("LSM");
  r.PlusValue1 = i.Double("PlusValue1");
  r.PlusValue2 = i.Double("PlusValue2");
  r.MontantsAnnuels = i.Flottants<26>("MontantsAnnuels");
  return r;
}

void Immobilisations(ObjetJson& o, const std::string& dossier, const char* cle, const char* fichier,
                     const char* cleDate) {
  if (!o.A(cle)) return;
  std::vector<Immobilisation> elements;
  for (const Json* element : o.Elements(cle)) {
    ObjetJson i(*element, o.Lieu() + ", " + cle + " " + std::to_string(elements.size() + 1), o.Notes());
    elements.push_back(ImmobilisationDe(i, cleDate));
    i.Terminer();
  }
  EcrireImmobilisations(Chemin(dossier, fichier), elements);
}

Emprunt EmpruntDe(ObjetJson& e) {
  Emprunt r;
  r.Nouveau = e.Flottant("Nouveau");
  r.TypeEmprunt = e.Entier16("TypeEmprunt");
  r.LibelleEmprunt = e.Texte("LibelleEmprunt", 40);
  r.PretMtsJa = e.Booleen("PretMtsJa") ? -1 : 0;
  r.DateRealisationEmprunt = e.Texte("DateRealisationEmprunt", 10);
  r.DateFin = e.Texte("DateFin", 10);
  r.MontantEmprunt = e.Flottant("MontantEmprunt");
  r.Taux1 = e.Flottant("Taux1");
  r.Duree1 = e.Flottant("Duree1");
  r.Taux2 = e.Flottant("Taux2");
  r.Duree2 = e.Flottant("Duree2");
  r.Taux3 = e.Flottant("Taux3");
  r.Duree3 = e.Flottant("Duree3");
  r.Periode = e.Flottant("Periode");
  r.DiffereEmprunt = e.Flottant("DiffereEmprunt");
  r.NumEntreePlan = e.Entier16("NumEntreePlan");
  r.Annuite = e.Flottants<27>("Annuite");
  r.Interets = e.Flottants<27>("Interets");
  r.CapitalRestant = e.Flottants<27>("CapitalRestant");
  r.Differe1 = e.Flottant("Differe1");
  r.Echeance1 = e.Flottant("Echeance1");
  r.Echeance2 = e.Flottant("Echeance2");
  return r;
}

void Emprunts(ObjetJson& o, const std::string& dossier) {
  if (!o.A("emprunts")) return;
  std::vector<Emprunt> emprunts;
  for (const Json* element : o.Elements("emprunts")) {
    ObjetJson e(*element, o.Lieu() + ", emprunt " + std::to_string(emprunts.size() + 1), o.Notes());
    emprunts.push_back(EmpruntDe(e));
    e.Terminer();
  }
  EcrireEmprunts(Chemin(dossier, "Emprunt.emp"), emprunts);
}

void PlanFinancement(ObjetJson& o, const std::string& dossier) {
  if (!o.A("plan_financement")) return;
  std::vector<LignePlanFinancement> lignes;
  for (const Json* element : o.Elements("plan_financement")) {
    ObjetJson l(*element, o.Lieu() + ", plan " + std::to_string(lignes.size() + 1), o.Notes());
    lignes.push_back({l.Flottant("NumEntree", static_cast<float>(lignes.size() + 1)),
                      l.Texte("ObjetInvestissement", 50), l.Flottant("Pourcentage"), l.Flottant("MontantPlan"),
                      l.Texte("ObjetFinancement", 50)});
    l.Terminer();
  }
  if (lignes.size() > kLignesPlan) o.Notes().avertissements.push_back(o.Lieu() + " : plus de 20 lignes de plan");
  EcrirePlanFinancement(Chemin(dossier, "PlanF.fin"), lignes);
}

void ActivitesLibres(ObjetJson& o, const std::string& dossier, const Modeles& modeles) {
  if (!o.A("activites_libres")) return;
  std::vector<ActiviteLibre> activites;
  for (const Json* element : o.Elements("activites_libres")) {
    ObjetJson a(*element, o.Lieu() + ", activité " + std::to_string(activites.size() + 1), o.Notes());
    ActiviteLibre activite{a.Entier16("numero", static_cast<int16_t>(activites.size() + 1)), a.Booleen("actif", true),
                           a.Texte("Nom", 0)};
    const std::string fichier = NomFichierActivite(activite.numero);
    EcrireSeriesDe(a.Valeur("series"), Chemin(dossier, fichier), a.Lieu() + ", " + fichier, modeles, o.Notes());
    a.Terminer();
    activites.push_back(std::move(activite));
  }
  EcrireModAniLib(Chemin(dossier, "ModAniLib.ini"), activites, o.Entier16("NumLastMod", -1));
}

}  // namespace

DossierGeneral DossierGeneralDe(const Json& description, const std::string& lieu, Journal& journal) {
  ObjetJson o(description, lieu, journal);
  DossierGeneral d;
  d.CheminDossierTervol = o.Texte("CheminDossierTervol", 50);
  d.NomDossierTervol = o.Texte("NomDossierTervol", 50);
  d.NomExploitation = o.Texte("NomExploitation", 30);
  d.Adresse = o.Texte("Adresse", 30);
  d.Commune = o.Texte("Commune", 30);
  d.Reserve190 = o.Entier16("Reserve190");
  d.AnneeDebut = o.Entier16("AnneeDebut");
  d.NbAnEtude = o.Entier16("NbAnEtude");
  d.TypeExploitation = o.Entier32("TypeExploitation");
  d.DescriptionProjet = DescriptionProjetDe(o);
  d.DateDebut = o.Texte("DateDebut", 10);
  d.Conseiller = o.Texte("Conseiller", 20);
  AssociesDe(o, d);
  d.RegionAgricole = o.Texte("RegionAgricole", 40);
  d.AutresActivites = o.Texte("AutresActivites", 40);
  d.Banque = o.Texte("Banque", 40);
  d.NumeroAdherent = o.Texte("NumeroAdherent", 15);
  ModeComDe(o, d);
  d.MoisTva = o.Entier16("MoisTva");
  d.Devise = o.Entier16("Devise", 1);
  d.Telephone = o.Texte("Telephone", 20);
  d.Fax = o.Texte("Fax", 20);
  o.Terminer();
  return d;
}

void ConstruireDossier(const Json& description, const std::string& repDossiers, const Modeles& modeles,
                       Journal& journal) {
  // The name first: it names the dossier in every note.
  const std::string nom = ObjetJson(description, "dossier", journal).TexteUtf8("nom");
  if (nom.empty()) throw ErreurDescription("dossier : « nom » (par exemple \"DUPONT.TVL\") manque");
  ObjetJson d(description, "dossier " + nom, journal);
  d.Valeur("nom");
  const Json* general = d.Valeur("general");
  const std::string dossier = CreerDossierEtude(
      repDossiers, nom, DossierGeneralDe(general ? *general : ObjetVide(), d.Lieu() + ", general", journal));
  for (const Json* fichier : d.Elements("series")) {
    ObjetJson f(*fichier, d.Lieu() + ", séries", journal);
    const std::string nomFichier = f.TexteUtf8("fichier");
    if (nomFichier.empty()) throw ErreurDescription(f.Lieu() + " : « fichier » manque");
    EcrireSeriesDe(fichier, Chemin(dossier, nomFichier), d.Lieu() + ", " + nomFichier, modeles, journal);
  }
  if (d.A("cultures")) Cultures(d, dossier, modeles);
  if (d.A("cultures_perennes")) CulturesPerennes(d, dossier, modeles);
  Immobilisations(d, dossier, "immobilisations", "Immo.imm", "DateRevente");
  Immobilisations(d, dossier, "subventions", "Sub.sub", "DateEcheance");
  Emprunts(d, dossier);
  PlanFinancement(d, dossier);
  ActivitesLibres(d, dossier, modeles);
  d.Terminer();
}

}  // namespace norvane::construction
