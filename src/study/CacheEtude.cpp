#include "study/CacheEtude.h"

#include <fstream>
#include <iterator>

#include "frame/ResolutionChemins.h"
#include "study/FichierSeries.h"

namespace norvane {
namespace {

std::unique_ptr<std::istream> OuvrirFichier(const std::string& cheminReel) {
  auto flux = std::make_unique<std::ifstream>(cheminReel, std::ios::binary);
  if (!*flux) return nullptr;
  return flux;
}

}  // namespace

CacheEtude::CacheEtude() : ouvrir_(OuvrirFichier) {}

CacheEtude::CacheEtude(Ouvreur ouvrir) : ouvrir_(std::move(ouvrir)) {}

CacheEtude::Fichier* CacheEtude::Trouver(const std::string& fichier) {
  auto [reel, nouveau] = reels_.try_emplace(fichier);
  if (nouveau) {
    if (auto taille = TailleFichierReguliere(fichier)) {
      reel->second = ResoudreChemin(fichier);
      if (reel->second) fichiers_.try_emplace(*reel->second).first->second.taille = *taille;
    }
  }
  return reel->second ? &fichiers_.at(*reel->second) : nullptr;
}

std::istream* CacheEtude::Flux(const std::string& reel, Fichier& f) {
  if (!f.ouvert) f.flux = ouvrir_(reel);
  f.ouvert = true;
  return f.flux.get();
}

uint64_t CacheEtude::Taille(const std::string& fichier) {
  const Fichier* f = Trouver(fichier);
  return f != nullptr ? f->taille : 0;
}

SerieDonnees CacheEtude::Enregistrement(const std::string& fichier, int32_t numero) {
  Fichier* f = Trouver(fichier);
  if (numero < 1 || f == nullptr) return SerieVide();
  if (auto deja = f->enregistrements.find(numero); deja != f->enregistrements.end()) return deja->second;
  SerieDonnees serie = SerieVide();
  if (std::istream* flux = Flux(*reels_.at(fichier), *f)) {
    flux->clear();
    flux->seekg(static_cast<std::streamoff>(numero - 1) * static_cast<std::streamoff>(kLongueurSerie));
    char octets[kLongueurSerie];
    flux->read(octets, sizeof octets);
    if (flux->gcount() > 0) serie = DecoderSerie(std::string_view(octets, static_cast<std::size_t>(flux->gcount())));
  }
  return f->enregistrements.emplace(numero, std::move(serie)).first->second;
}

const ProfilIni* CacheEtude::Profil(const std::string& fichier) {
  Fichier* f = Trouver(fichier);
  if (f == nullptr) return nullptr;
  if (!f->profil) {
    std::istream* flux = Flux(*reels_.at(fichier), *f);
    if (flux == nullptr) return nullptr;
    flux->clear();
    flux->seekg(0);
    f->profil = ProfilIni::DepuisTexte(std::string(std::istreambuf_iterator<char>(*flux), {}));
  }
  return &*f->profil;
}

}  // namespace norvane
