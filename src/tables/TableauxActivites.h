// Free animal activities in tables: one table per active module of
// ModAniLib.ini ("actlibr..." codes), and the module values of "ALani" cells.
#pragma once

#include <set>
#include <string>

namespace norvane {

struct Generation;
class ProducteursTables;
class TableauxDocument;

std::string GenererTableauxActivites(ProducteursTables& producteurs, Generation& generation,
                                     TableauxDocument& tableaux, const std::string& code);

// "@<record>[:<decimals>]" of the module in hand, for exercise `annee`. A
// missing series file is told once per generation (`signales`) and gives 0.
std::string ValeurActivite(Generation& generation, const ProducteursTables& producteurs,
                           const std::string& reference, int annee, std::set<std::string>& signales);

}  // namespace norvane
