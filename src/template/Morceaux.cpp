#include "template/Morceaux.h"

#include <algorithm>
#include <cstring>

#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr uint64_t kJamais = ~uint64_t{0};

int32_t CompterMarques(std::string_view ligne) {
  int32_t n = 0;
  for (std::size_t p = 0; (p = ChercherSansCasse(ligne, "#tvl(", p)) != std::string_view::npos; p += 5) ++n;
  return n;
}

// First start position from which a motif of `longueur` bytes may reach
// into [debut, ...): the starts before it are untouched by an edit there.
std::size_t PremierTouche(std::size_t debut, std::size_t longueur) {
  return debut + 1 >= longueur ? debut + 1 - longueur : 0;
}

}  // namespace

ModeleDecoupe DecouperEnMorceaux(std::string_view contenu) {
  ModeleDecoupe d;
  d.morceaux.emplace_back();
  std::size_t p = 0;
  while (p < contenu.size()) {
    std::size_t fin = contenu.find_first_of("\r\n", p);
    if (fin == std::string_view::npos) fin = contenu.size();
    std::string_view ligne = contenu.substr(p, fin - p);
    if (d.morceaux.back().size() > kTailleMorceau) d.morceaux.emplace_back();
    d.morceaux.back().append(ligne);
    d.nbCodes += CompterMarques(ligne);
    p = fin;
    if (p < contenu.size() && contenu[p] == '\r') ++p;
    if (p < contenu.size() && contenu[p] == '\n' && (p == fin || contenu[fin] == '\r')) ++p;
  }
  return d;
}

std::size_t RechercheMemorisee::Trouver(const std::string& texte, std::size_t depuis, uint64_t version) {
  const bool memeTexte = version == version_ && depuis >= depuis_ && texte.size() >= taille_;
  if (memeTexte && trouve_ != std::string::npos && trouve_ >= depuis) return trouve_;
  std::size_t reprise = depuis;
  if (memeTexte && trouve_ == std::string::npos) {
    // Nothing up to the old end: only the glued text, and the seam, need a look.
    reprise = std::max(depuis, PremierTouche(taille_, motif_.size()));
  }
  trouve_ = Chercher(texte, motif_, reprise, sansCasse_);
  version_ = version;
  depuis_ = depuis;
  taille_ = texte.size();
  return trouve_;
}

std::size_t RechercheMemorisee::ChercherEntre(const std::string& texte, std::size_t de, std::size_t a) const {
  if (de >= a) return std::string::npos;
  const std::size_t borne = std::min(texte.size(), a + motif_.size() - 1);
  return Chercher(std::string_view(texte).substr(0, borne), motif_, de, sansCasse_);
}

// The memory says: no occurrence starts in [depuis_, trouve_) (or, with none
// found, in front of the last motif-length of the text as it was). Starts
// that cannot reach the edit keep their answer; only a window over the new
// bytes and their seams is looked at again, unless the occurrence found was
// itself touched, in which case the search goes on from the window.
void RechercheMemorisee::ApresRetouche(const std::string& texte, const Retouche& r) {
  if (version_ != r.version) return;
  const std::size_t m = motif_.size();
  depuis_ = std::max(depuis_, r.debutMorceau);
  if (trouve_ != std::string::npos && trouve_ < depuis_) {  // found in the consumed head: of no more use
    version_ = kJamais;
    return;
  }
  if (depuis_ >= r.fin && depuis_ > r.debut) {  // wholly behind the edit: it only moves
    depuis_ = r.Origine(depuis_);
    if (trouve_ != std::string::npos) trouve_ = r.Nouvelle(trouve_);
    taille_ = r.Nouvelle(taille_);
    return;
  }
  if (depuis_ > r.debut) {  // begins inside the edit: looked through again
    version_ = kJamais;
    return;
  }
  const bool trouve = trouve_ != std::string::npos;
  const std::size_t propre = std::max(depuis_, trouve ? trouve_ : PremierTouche(taille_, m));
  const std::size_t fenetre = r.Origine(std::max(depuis_, std::min(propre, PremierTouche(r.debut, m))));
  const std::size_t ancienneTaille = taille_;
  depuis_ = r.Origine(depuis_);
  taille_ = texte.size();
  if (trouve && trouve_ + m <= r.debut) {
    trouve_ = r.Nouvelle(trouve_);
    return;
  }
  if (propre < r.fin || (trouve && trouve_ < r.fin)) {
    trouve_ = Chercher(texte, motif_, fenetre, sansCasse_);
    return;
  }
  const std::size_t dansFenetre = ChercherEntre(texte, fenetre, r.NouvelleFin());
  if (dansFenetre != std::string::npos) {
    trouve_ = dansFenetre;
  } else if (trouve) {
    trouve_ = r.Nouvelle(trouve_);
  } else {
    taille_ = r.Nouvelle(ancienneTaille);
  }
}

std::size_t CompteMemorise::CompterEntre(const std::string& texte, std::size_t de, std::size_t a) const {
  std::size_t n = 0;
  const std::string_view t(texte);
  for (std::size_t p = t.find(motif_, de); p != std::string_view::npos && p < a; p = t.find(motif_, p + motif_.size())) {
    ++n;
  }
  return n;
}

std::size_t CompteMemorise::Compter(const std::string& texte, std::size_t depuis, uint64_t version) {
  if (version != version_ || depuis < depuis_ || texte.size() < taille_) {
    version_ = version;
    depuis_ = depuis;
    taille_ = texte.size();
    nombre_ = CompterEntre(texte, depuis, texte.size());
    return nombre_;
  }
  // What the glued text brought, seam included, then what lies before `depuis`.
  nombre_ += CompterEntre(texte, std::max(depuis_, PremierTouche(taille_, motif_.size())), texte.size());
  taille_ = texte.size();
  nombre_ -= CompterEntre(texte, depuis_, depuis);
  depuis_ = depuis;
  return nombre_;
}

void CompteMemorise::AvantRetouche(const std::string& texte, const Retouche& r) {
  if (version_ != r.version) return;
  nombre_ += CompterEntre(texte, std::max(depuis_, PremierTouche(taille_, motif_.size())), texte.size());
  taille_ = texte.size();
  if (depuis_ < r.debutMorceau) {  // the consumed head may be overwritten: counted no more
    nombre_ -= CompterEntre(texte, depuis_, r.debutMorceau);
    depuis_ = r.debutMorceau;
  }
  if (depuis_ < r.fin) nombre_ -= CompterEntre(texte, std::max(depuis_, PremierTouche(r.debut, motif_.size())), r.fin);
}

void CompteMemorise::ApresRetouche(const std::string& texte, const Retouche& r) {
  if (version_ != r.version) return;
  const bool touche = depuis_ < r.fin || depuis_ == r.debut;  // an insertion at `depuis_` counts too
  const std::size_t de = r.Origine(std::max(depuis_, PremierTouche(r.debut, motif_.size())));
  depuis_ = r.Origine(depuis_);
  taille_ = texte.size();
  if (touche) nombre_ += CompterEntre(texte, de, r.NouvelleFin());
}

void OriginesMorceau::Charger(std::size_t origine) {
  segments_.swap(tete_);
  tete_.clear();
  segments_.push_back({static_cast<std::ptrdiff_t>(finTete_), origine});
  finTete_ = 0;
}

void OriginesMorceau::Coller(std::size_t taille, std::size_t origine) {
  segments_.push_back({static_cast<std::ptrdiff_t>(taille), origine});
}

void OriginesMorceau::AnnoncerTete(std::size_t ajout, std::size_t origineReste, std::size_t longueur) {
  tete_ = {{0, origineReste, true}, {static_cast<std::ptrdiff_t>(ajout), origineReste}};
  finTete_ = ajout + longueur;
}

OriginesMorceau::Segment OriginesMorceau::SegmentEn(std::size_t position) const {
  const auto p = static_cast<std::ptrdiff_t>(position);
  auto apres = std::upper_bound(segments_.begin(), segments_.end(), p,
                                [](std::ptrdiff_t x, const Segment& s) { return x < s.debut; });
  return apres == segments_.begin() ? Segment{0, 0} : *(apres - 1);
}

std::size_t OriginesMorceau::Origine(std::size_t position) const {
  const Segment s = SegmentEn(position);
  return s.fixe ? s.origine : s.origine + static_cast<std::size_t>(static_cast<std::ptrdiff_t>(position) - s.debut);
}

// Segments before the edit move with the head, those behind it with the
// tail; one starting inside the replaced bytes is covered by the new ones.
void OriginesMorceau::ApresRetouche(const std::string& /*texte*/, const Retouche& r) {
  const std::size_t origineDebut = Origine(r.debut);
  const std::size_t origineFin = Origine(r.fin);
  std::vector<Segment> nouveaux;
  nouveaux.reserve(segments_.size() + 2);
  const auto debut = static_cast<std::ptrdiff_t>(r.debut);
  const auto fin = static_cast<std::ptrdiff_t>(r.fin);
  for (const Segment& s : segments_) {
    if (s.debut < debut) nouveaux.push_back({s.debut + r.decalageTete, s.origine, s.fixe});
  }
  nouveaux.push_back({static_cast<std::ptrdiff_t>(r.NouveauDebut()), origineDebut, true});
  nouveaux.push_back({static_cast<std::ptrdiff_t>(r.NouvelleFin()), origineFin, SegmentEn(r.fin).fixe});
  for (const Segment& s : segments_) {
    if (s.debut > fin) nouveaux.push_back({s.debut + r.decalageQueue, s.origine, s.fixe});
  }
  segments_.swap(nouveaux);
}

void MorceauCourant::Charger(std::string texte) {
  texte_ = std::move(texte);
  debut_ = 0;
  ++version_;
}

void MorceauCourant::Avancer(std::size_t position) {
  debut_ = std::min(position, texte_.size());
  // Drop a long consumed head now and then, so that memory stays bounded
  // while the cost of the copies stays linear overall; room left in front
  // by an edit is kept while it is not over twice the remainder.
  if (debut_ > 65536 && debut_ / 2 > texte_.size() - debut_) {
    const Retouche r{.debut = 0,
                     .fin = debut_,
                     .longueur = 0,
                     .decalageTete = 0,
                     .decalageQueue = -static_cast<std::ptrdiff_t>(debut_),
                     .debutMorceau = debut_,
                     .version = version_};
    Notifier(r, true);
    texte_.erase(0, debut_);
    debut_ = 0;
    Notifier(r, false);
  }
}

// The bytes between the consumed head and the edit move, into the consumed
// room when there is enough of it; otherwise the piece is laid out again with
// as much room in front as it holds, so that edits to come fit.
void MorceauCourant::Retoucher(std::size_t debut, std::size_t fin, std::string_view nouveau) {
  Retouche r{.debut = debut, .fin = fin, .longueur = nouveau.size(), .debutMorceau = debut_, .version = version_};
  const std::size_t tete = debut - debut_;
  const std::size_t longueurTete = tete + nouveau.size();
  if (nouveau.size() == fin - debut || longueurTete <= fin) {
    const std::size_t nouveauDebut = nouveau.size() == fin - debut ? debut_ : fin - longueurTete;
    r.decalageTete = static_cast<std::ptrdiff_t>(nouveauDebut) - static_cast<std::ptrdiff_t>(debut_);
    Notifier(r, true);
    std::memmove(texte_.data() + nouveauDebut, texte_.data() + debut_, tete);
    std::copy(nouveau.begin(), nouveau.end(), texte_.begin() + static_cast<std::ptrdiff_t>(nouveauDebut + tete));
    debut_ = nouveauDebut;
    Notifier(r, false);
    return;
  }
  const std::size_t marge = longueurTete + (texte_.size() - fin);
  std::string neuf;
  neuf.reserve(marge + longueurTete + (texte_.size() - fin));
  neuf.assign(marge, ' ');
  neuf.append(texte_, debut_, tete);
  neuf.append(nouveau);
  neuf.append(texte_, fin);
  r.decalageTete = static_cast<std::ptrdiff_t>(marge) - static_cast<std::ptrdiff_t>(debut_);
  r.decalageQueue = static_cast<std::ptrdiff_t>(marge + longueurTete) - static_cast<std::ptrdiff_t>(fin);
  Notifier(r, true);
  texte_.swap(neuf);
  debut_ = marge;
  Notifier(r, false);
}

std::size_t MorceauCourant::TrouverDepuis(RechercheMemorisee& recherche, std::size_t depuis) {
  Suivre(recherche);
  return recherche.Trouver(texte_, depuis, version_);
}

std::size_t MorceauCourant::Compter(CompteMemorise& compte, std::size_t depuis) {
  Suivre(compte);
  return compte.Compter(texte_, depuis, version_);
}

void MorceauCourant::Suivre(SuiviMorceau& suivi) {
  if (std::find(suivis_.begin(), suivis_.end(), &suivi) == suivis_.end()) suivis_.push_back(&suivi);
}

void MorceauCourant::Notifier(const Retouche& r, bool avant) {
  for (SuiviMorceau* suivi : suivis_) {
    if (avant) {
      suivi->AvantRetouche(texte_, r);
    } else {
      suivi->ApresRetouche(texte_, r);
    }
  }
}

}  // namespace norvane
