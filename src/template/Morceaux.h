// A template is handled as a list of text pieces of a little over 1000
// characters, cut at line ends: the searches and cuts of the generator then
// work on short texts, and a code torn across two pieces is mended by gluing
// them. The file's line breaks are not kept inside a piece.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

constexpr std::size_t kTailleMorceau = 1000;

struct ModeleDecoupe {
  std::vector<std::string> morceaux;  // never empty: starts with one empty piece
  int32_t nbCodes = 0;                // "#tvl(" marks in the whole file, any case
};

// Lines end with CR LF, LF or CR; a final line end makes no extra line.
ModeleDecoupe DecouperEnMorceaux(std::string_view contenu);

// An edit of the piece in hand: the bytes [debut, fin) of the old text gave
// way to `longueur` bytes. An old position before `debut` now lies
// `decalageTete` further, one from `fin` on `decalageQueue` further; the new
// bytes start at debut + decalageTete.
struct Retouche {
  std::size_t debut = 0;
  std::size_t fin = 0;
  std::size_t longueur = 0;
  std::ptrdiff_t decalageTete = 0;
  std::ptrdiff_t decalageQueue = 0;
  std::size_t debutMorceau = 0;  // the piece's consumed head ended there before the edit
  uint64_t version = 0;          // the piece's version, which an edit keeps

  std::size_t NouveauDebut() const { return Decaler(debut, decalageTete); }
  std::size_t NouvelleFin() const { return NouveauDebut() + longueur; }
  // Where the old byte at `ancienne` now stands; a byte of the old bytes
  // gives the first new byte.
  std::size_t Nouvelle(std::size_t ancienne) const {
    if (ancienne < debut) return Decaler(ancienne, decalageTete);
    return ancienne >= fin ? Decaler(ancienne, decalageQueue) : NouveauDebut();
  }
  // Where a search from `ancienne` now starts: as Nouvelle, but a search
  // from `debut` takes in the new bytes.
  std::size_t Origine(std::size_t ancienne) const {
    return ancienne <= debut ? Decaler(ancienne, decalageTete) : Nouvelle(ancienne);
  }
  static std::size_t Decaler(std::size_t x, std::ptrdiff_t d) {
    return static_cast<std::size_t>(static_cast<std::ptrdiff_t>(x) + d);
  }
};

// What a piece tells the searches it keeps valid: each edit, seen before and
// after it is made.
class SuiviMorceau {
 public:
  virtual ~SuiviMorceau() = default;
  virtual void AvantRetouche(const std::string& /*texte*/, const Retouche& /*r*/) {}
  virtual void ApresRetouche(const std::string& texte, const Retouche& r) = 0;
};

// Index of the first occurrence of `motif` at or after `depuis`, remembered
// between calls so that scanning a long piece code after code stays linear.
// The text may grow at its end between calls; an edit told through
// ApresRetouche keeps the memory valid at the cost of a look around the edit;
// any other change must come with a new `version`.
class RechercheMemorisee : public SuiviMorceau {
 public:
  RechercheMemorisee(std::string_view motif, bool sansCasse) : motif_(motif), sansCasse_(sansCasse) {}
  std::size_t Trouver(const std::string& texte, std::size_t depuis, uint64_t version);
  void ApresRetouche(const std::string& texte, const Retouche& r) override;

 private:
  std::size_t ChercherEntre(const std::string& texte, std::size_t de, std::size_t a) const;

  std::string motif_;
  bool sansCasse_;
  uint64_t version_ = ~uint64_t{0};
  std::size_t depuis_ = 0;
  std::size_t trouve_ = std::string::npos;
  std::size_t taille_ = 0;  // size of the text when it was last looked through
};

// Number of occurrences of `motif` from a position to the end of the text,
// remembered so that asking again further on, after the text grew or was
// edited, costs only what changed. The motif must not overlap itself.
class CompteMemorise : public SuiviMorceau {
 public:
  explicit CompteMemorise(std::string_view motif) : motif_(motif) {}
  std::size_t Compter(const std::string& texte, std::size_t depuis, uint64_t version);
  void AvantRetouche(const std::string& texte, const Retouche& r) override;
  void ApresRetouche(const std::string& texte, const Retouche& r) override;

 private:
  // Occurrences starting in [de, a) and lying whole inside the text.
  std::size_t CompterEntre(const std::string& texte, std::size_t de, std::size_t a) const;

  std::string motif_;
  uint64_t version_ = ~uint64_t{0};
  std::size_t depuis_ = 0;
  std::size_t nombre_ = 0;
  std::size_t taille_ = 0;
};

// Where each byte of the piece in hand stood in the template's text without
// its line breaks (the pieces end to end), through loads, gluings and edits:
// what a reader of the walk needs to place what it meets. Bytes that an edit
// put in, and a notice put in front of a piece, all take the place of the
// first byte they replaced or stand at: a start mark moved out of a bookmark
// stays where the user typed it.
class OriginesMorceau : public SuiviMorceau {
 public:
  // A piece loaded, whose first byte stood at `origine`.
  void Charger(std::size_t origine);
  // A piece glued behind the first `taille` bytes of the piece in hand.
  void Coller(std::size_t taille, std::size_t origine);
  // The next piece loaded opens with `ajout` bytes of a notice, then the
  // `longueur` bytes that stood from `origineReste` on, then its own text.
  void AnnoncerTete(std::size_t ajout, std::size_t origineReste, std::size_t longueur);
  std::size_t Origine(std::size_t position) const;
  void ApresRetouche(const std::string& texte, const Retouche& r) override;

 private:
  struct Segment {
    std::ptrdiff_t debut;  // in the piece in hand; the head consumed may lie before 0
    std::size_t origine;
    bool fixe = false;     // every byte of the segment takes `origine`
  };
  // The segment that holds `position`.
  Segment SegmentEn(std::size_t position) const;

  std::vector<Segment> segments_;  // by `debut`
  std::vector<Segment> tete_;      // what the next load opens with
  std::size_t finTete_ = 0;        // where the next load's own text starts
};

// The piece in hand: a text of which the part before `debut` is consumed.
// Cutting its head only moves `debut`, so that the generator never copies
// the remainder of a long piece at each code. An edit moves the part between
// `debut` and the edit, never the remainder behind it, and the searches and
// counts asked through the piece stay valid across it.
class MorceauCourant {
 public:
  void Charger(std::string texte);
  // Glues the next piece behind the remainder.
  void Coller(const std::string& suivant) { texte_ += suivant; }
  void Avancer(std::size_t position);  // the piece becomes what stands from `position` on
  // Replaces the bytes [debut, fin) of the remainder by `nouveau`.
  void Retoucher(std::size_t debut, std::size_t fin, std::string_view nouveau);

  const std::string& Texte() const { return texte_; }
  std::size_t Debut() const { return debut_; }
  std::string_view Reste() const { return std::string_view(texte_).substr(debut_); }
  bool Vide() const { return debut_ >= texte_.size(); }
  std::size_t Trouver(RechercheMemorisee& recherche) { return TrouverDepuis(recherche, debut_); }
  std::size_t TrouverDepuis(RechercheMemorisee& recherche, std::size_t depuis);
  std::size_t Compter(CompteMemorise& compte, std::size_t depuis);
  // Tells `suivi` of every edit from now on.
  void Suivre(SuiviMorceau& suivi);

 private:
  void Notifier(const Retouche& r, bool avant);

  std::string texte_;
  std::size_t debut_ = 0;
  uint64_t version_ = 0;
  std::vector<SuiviMorceau*> suivis_;
};

}  // namespace norvane
