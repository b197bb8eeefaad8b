// Everything one generation works with: the session, the ports to the user,
// the hooks that the table, graph and driver subsystems fill in, and the state
// that lives from the start of CreerDocument to its end.
#pragma once

#include <cstdint>
#include <ctime>
#include <functional>
#include <optional>
#include <string>

#include "frame/Ports.h"
#include "study/Session.h"
#include "study/CacheEtude.h"
#include "study/EntitesCourantes.h"
#include "study/Series.h"

namespace norvane {

struct Generation;

// Table codes (tab..., culture..., cultper..., actlibr...). std::nullopt: the
// code is not handled and stays in the result as it stands.
class PortTableaux {
 public:
  virtual ~PortTableaux() = default;
  virtual std::optional<std::string> GenererTableau(Generation& generation, const std::string& code) = 0;
};

// Graph codes (gph(...)). std::nullopt: the code stays in the result.
class PortGraphiques {
 public:
  virtual ~PortGraphiques() = default;
  virtual std::optional<std::string> GenererGraphique(Generation& generation, const std::string& code) = 0;
};

// Turns a picture file into an RTF {\pict ...} group; empty when it cannot.
class PortImages {
 public:
  virtual ~PortImages() = default;
  virtual std::string ImageVersRtf(const std::string& chemin) = 0;
};

// Lines of the table being generated, read by LGn references of formulas.
class LignesTableau {
 public:
  virtual ~LignesTableau() = default;
  // Number kept for line n (1..511) and year index (0..15).
  virtual float Valeur(int ligne, int annee) const = 0;
  // Text of line n: the first of its three label cells that is not blank.
  virtual std::string Texte(int ligne) const = 0;
  // True when the first value column of the table is study year 1.
  virtual bool DebuteAnneeUn() const = 0;
};

// The bound word processor, as far as the generator needs it.
// editeur: 1 Word, 2 Word Pro, 3 OpenOffice (the only one on Linux).
class PortEditeur {
 public:
  virtual ~PortEditeur() = default;
  // Opens a document for the user.
  virtual void OuvrirDocument(int editeur, const std::string& chemin) = 0;
  // The document `source` saved under `chemin`, in the format its extension
  // names, by the driver `editeur`. `fermer` false leaves the result open
  // for the user. True when `chemin` holds the result.
  virtual bool SauvegarderSous(bool fermer, int editeur, const std::string& source, const std::string& chemin) = 0;
};

// State of one run of CreerDocument, zeroed at its start.
struct EtatGeneration {
  int16_t NumPageCompteur = 0;
  int16_t ProchaineCouleur = 0;
  bool TransfoPerenne = false;
  // Literal "#tvl(...)#" of the code being interpreted, before cleaning.
  std::string CodeCourant;
  int16_t DernierResultat = -1;
  // The study files and donnees.INI as this generation reads them: each
  // opened once, dropped with the state so that the next generation sees the
  // files as they are then. Mutable: reading through it changes no result.
  mutable CacheEtude Fichiers;
};

struct Generation {
  Generation(Session& s, PortMessages& m, PortProgression& p, const EntitesCourantes& e)
      : session(s), messages(m), progression(p), entites(&e) {}

  Session& session;
  PortMessages& messages;
  PortProgression& progression;
  const EntitesCourantes* entites;
  PortTableaux* tableaux = nullptr;
  PortGraphiques* graphiques = nullptr;
  PortImages* images = nullptr;       // null: PNG and JPEG files are embedded as they are
  PortEditeur* editeur = nullptr;     // null: nothing is opened or converted
  const LignesTableau* lignes = nullptr;  // null: no table in hand
  // The moment of generation, for date codes; the system clock when empty.
  std::function<std::time_t()> horloge;
  // Set when the Cerfa frame is shown: its years box. A value above 0
  // replaces the dossier's number of study years, any other gives 5.
  std::optional<int16_t> AnneesCerfa;

  EtatGeneration etat;

  ContexteSeries Series() const { return ContexteSeries{session, messages, *entites, &etat.Fichiers}; }
  std::time_t Maintenant() const { return horloge ? horloge() : std::time(nullptr); }
};

}  // namespace norvane
