<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>DlgCoordParam</name>
    <message>
        <source>Origin</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>Standard parallels</source>
        <translation>Parallèles standard</translation>
    </message>
    <message>
        <source>Checked point</source>
        <translation>Point contrôlé</translation>
    </message>
    <message>
        <source>Designed area</source>
        <translation>Zone du projet</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>What the map is around.</source>
        <translation>Ce qui est au centre de la carte.</translation>
    </message>
    <message>
        <source>Width of the area</source>
        <translation>Largeur de la zone</translation>
    </message>
    <message>
        <source>Side of the square area; the map shows all of it.</source>
        <translation>Côté de la zone carrée&#xa0;; la carte la montre entière.</translation>
    </message>
    <message>
        <source>Central meridian</source>
        <translation>Méridien central</translation>
    </message>
    <message>
        <source>Standard parallel</source>
        <translation>Parallèle standard</translation>
    </message>
    <message>
        <source>Outline of the area</source>
        <translation>Contour de la zone</translation>
    </message>
    <message>
        <source>Easting, %1</source>
        <translation>Est, %1</translation>
    </message>
    <message>
        <source>Northing, %1</source>
        <translation>Nord, %1</translation>
    </message>
    <message>
        <source>From catalogue</source>
        <translation>Du catalogue</translation>
    </message>
    <message>
        <source>Words of the group or of the name</source>
        <translation>Mots du groupe ou du nom</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Systèmes</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1, dans %2</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Ellipsoidal height</source>
        <translation>Hauteur ellipsoïdale</translation>
    </message>
    <message>
        <source>along the meridian %1
along the parallel %2</source>
        <translation>le long du méridien %1
le long du parallèle %2</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Copier en texte</translation>
    </message>
    <message>
        <source>The system&apos;s own</source>
        <translation>Celui du système</translation>
    </message>
    <message>
        <source>WGS 84</source>
        <translation>WGS 84</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Easting</source>
        <translation>Est</translation>
    </message>
    <message>
        <source>Northing</source>
        <translation>Nord</translation>
    </message>
    <message>
        <source>Grid scale factor</source>
        <translation>Module linéaire</translation>
    </message>
    <message>
        <source>Convergence</source>
        <translation>Convergence des méridiens</translation>
    </message>
    <message>
        <source>Combined factor</source>
        <translation>Facteur combiné</translation>
    </message>
    <message>
        <source>Closing error</source>
        <translation>Erreur de fermeture</translation>
    </message>
    <message>
        <source>A true azimuth is the grid bearing plus the convergence. Where the projection is not conformal, this holds along the meridian only.</source>
        <translation>L’azimut géographique est le gisement plus la convergence des méridiens. Là où la projection n’est pas conforme, cela ne vaut que le long du méridien.</translation>
    </message>
    <message>
        <source>Grid scale factor times R / (R + height): from a distance at that height to the grid.</source>
        <translation>Module linéaire fois R / (R + hauteur)&#xa0;: d’une distance à cette hauteur vers le plan de projection.</translation>
    </message>
    <message>
        <source>How far the point is off when it is computed there and back: through the projection, and through the datum shift.</source>
        <translation>De combien le point s’écarte après un calcul aller et retour&#xa0;: par la projection et par le changement de datum.</translation>
    </message>
    <message>
        <source>the same: the system&apos;s datum is WGS 84</source>
        <translation>identique&#xa0;: le datum du système est WGS 84</translation>
    </message>
    <message>
        <source>unknown: the system defines no datum shift</source>
        <translation>inconnu&#xa0;: le système ne définit aucun changement de datum</translation>
    </message>
    <message>
        <source>The registry&apos;s shifts move this point by %1 m.</source>
        <translation>Les changements de datum du registre déplacent ce point de %1 m.</translation>
    </message>
    <message>
        <source>The registry&apos;s shifts move this point by %1 to %2 m.</source>
        <translation>Les changements de datum du registre déplacent ce point de %1 à %2 m.</translation>
    </message>
    <message>
        <source>On WGS 84</source>
        <translation>En WGS 84</translation>
    </message>
    <message>
        <source>On the own datum</source>
        <translation>Dans le datum du système</translation>
    </message>
    <message>
        <source>The projection gives no result for this point.</source>
        <translation>La projection ne donne aucun résultat pour ce point.</translation>
    </message>
    <message>
        <source>along the meridian %1
in other directions off by up to %2&quot;</source>
        <translation>le long du méridien %1
dans d’autres directions, écart jusqu’à %2&quot;</translation>
    </message>
    <message>
        <source>%1, datum shift %2</source>
        <translation>%1, changement de datum %2</translation>
    </message>
    <message>
        <source>The projection is not reliable here.</source>
        <translation>La projection n’est pas fiable ici.</translation>
    </message>
    <message>
        <source>The datum shift is not reliable here.</source>
        <translation>Le changement de datum n’est pas fiable ici.</translation>
    </message>
    <message>
        <source>Lengths of points in international feet (ft, 0.3048 m); the system&apos;s parameters in metres.</source>
        <translation>Longueurs des points en pieds internationaux (ft, 0.3048 m)&#xa0;; paramètres du système en mètres.</translation>
    </message>
    <message>
        <source>Lengths of points in US survey feet (ftUS, 1200/3937 m); the system&apos;s parameters in metres.</source>
        <translation>Longueurs des points en pieds d’arpentage US (ftUS, 1200/3937 m)&#xa0;; paramètres du système en mètres.</translation>
    </message>
    <message>
        <source>Lengths in metres (m).</source>
        <translation>Longueurs en mètres (m).</translation>
    </message>
    <message>
        <source>Check of a coordinate system against control points</source>
        <translation>Contrôle d’un système de coordonnées sur des points d’appui</translation>
    </message>
    <message>
        <source>No point in use has both pairs of coordinates: nothing could be compared.</source>
        <translation>Aucun point utilisé n’a les deux couples de coordonnées&#xa0;: rien n’a pu être comparé.</translation>
    </message>
    <message numerus="yes">
        <source>All %n compared point(s) are within the tolerance of %1.</source>
        <translation>
            <numerusform>%n point comparé, dans la tolérance de %1.</numerusform>
            <numerusform>Les %n points comparés sont tous dans la tolérance de %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 compared points are beyond the tolerance of %2.</source>
        <translation>
            <numerusform>%n point comparé sur %1 est hors de la tolérance de %2.</numerusform>
            <numerusform>%n points comparés sur %1 sont hors de la tolérance de %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Computed minus given</source>
        <translation>Calculé moins donné</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>moyenne</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>EMQ</translation>
    </message>
    <message>
        <source>largest</source>
        <translation>maximum</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message numerus="yes">
        <source>point(s) in the list</source>
        <translation>
            <numerusform>point dans la liste</numerusform>
            <numerusform>points dans la liste</numerusform>
        </translation>
    </message>
    <message>
        <source>compared: in use, with both pairs of coordinates</source>
        <translation>comparés&#xa0;: utilisés et avec les deux couples de coordonnées</translation>
    </message>
    <message>
        <source>of these beyond the tolerance, the farthest first</source>
        <translation>dont hors tolérance, le plus éloigné d’abord</translation>
    </message>
    <message>
        <source>with both pairs left out of the figures by hand</source>
        <translation>avec les deux couples, exclus des statistiques à la main</translation>
    </message>
    <message>
        <source>with one pair only, the other computed</source>
        <translation>avec un seul couple, l’autre calculé</translation>
    </message>
    <message>
        <source>not computed, as that was cancelled</source>
        <translation>non calculés, car le calcul a été annulé</translation>
    </message>
    <message>
        <source>without a result; the list says why</source>
        <translation>sans résultat&#xa0;; la liste dit pourquoi</translation>
    </message>
    <message>
        <source>with a name that another has</source>
        <translation>au nom porté par un autre</translation>
    </message>
    <message>
        <source>Latitudes, longitudes and heights of the points are on the system&apos;s own datum.</source>
        <translation>Latitudes, longitudes et hauteurs des points sont dans le datum propre au système.</translation>
    </message>
    <message>
        <source>Latitudes, longitudes and heights of the points are on WGS 84, and brought to the system&apos;s datum by its shift.</source>
        <translation>Latitudes, longitudes et hauteurs des points sont en WGS 84, et amenées au datum du système par son changement de datum.</translation>
    </message>
    <message>
        <source>No. %1</source>
        <translation>N° %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Points and residuals</source>
        <translation>Points et résidus</translation>
    </message>
    <message>
        <source>Vectors lead from the given place to the computed one, longer than life by the factor beside the scale bar. Red: beyond the tolerance. Grey: left out.</source>
        <translation>Les vecteurs mènent du lieu donné au lieu calculé, agrandis du facteur indiqué près de la barre d’échelle. Rouge&#xa0;: hors tolérance. Gris&#xa0;: exclu.</translation>
    </message>
    <message>
        <source>Linear distortion</source>
        <translation>Altération linéaire</translation>
    </message>
    <message>
        <source>On the map: %1 to %2 ppm (mm in a kilometre). Red: longer in the grid than on the ground; blue: shorter. Black rectangle: the area of the points.</source>
        <translation>Sur la carte&#xa0;: %1 à %2 ppm (mm par kilomètre). Rouge&#xa0;: plus long en projection qu’au sol&#xa0;; bleu&#xa0;: plus court. Rectangle noir&#xa0;: la zone des points.</translation>
    </message>
    <message>
        <source>At the points&apos; mean height of %1 above the ellipsoid.</source>
        <translation>À la hauteur moyenne des points, %1 au-dessus de l’ellipsoïde.</translation>
    </message>
    <message>
        <source>At the height 0, as the points have none: what the projection alone does.</source>
        <translation>À la hauteur 0, les points n’en ayant pas&#xa0;: l’effet de la projection seule.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>ΔE, ΔN: computed from latitude and longitude, minus given. *: beyond the tolerance. Slanted: computed from the other pair.</source>
        <translation>ΔE, ΔN&#xa0;: calculé d’après la latitude et la longitude, moins donné. *&#xa0;: hors tolérance. Italique&#xa0;: calculé d’après l’autre couple.</translation>
    </message>
    <message>
        <source>The list has %1 points, too many for a report; here are those that matter most. &quot;Save...&quot; writes all of them as CSV.</source>
        <translation>La liste a %1 points, trop pour un rapport&#xa0;; voici ceux qui importent le plus. «&#xa0;Enregistrer...&#xa0;» les écrit tous en CSV.</translation>
    </message>
    <message numerus="yes">
        <source>The %n point(s) that are farthest off, of %1 compared</source>
        <translation>
            <numerusform>Point le plus éloigné (%n sur %1 comparés)</numerusform>
            <numerusform>Les %n points les plus éloignés, sur %1 comparés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Points left out or without a result: the first %n of %1</source>
        <translation>
            <numerusform>Points exclus ou sans résultat&#xa0;: %n sur %1</numerusform>
            <numerusform>Points exclus ou sans résultat&#xa0;: les %n premiers sur %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Left out of the figures.</source>
        <translation>Exclu des statistiques.</translation>
    </message>
    <message>
        <source>From catalogue...</source>
        <translation>Du catalogue...</translation>
    </message>
    <message>
        <source>From registry...</source>
        <translation>Du registre...</translation>
    </message>
    <message>
        <source>With datum shifts</source>
        <translation>Avec changements de datum</translation>
    </message>
    <message>
        <source>Apart from the mean</source>
        <translation>Hors moyenne</translation>
    </message>
    <message>
        <source>Picture of the difference</source>
        <translation>Image de la différence</translation>
    </message>
    <message>
        <source>The same place for both systems: through WGS 84 with both datum shifts, or else the same latitude and longitude.</source>
        <translation>Le même lieu pour les deux systèmes&#xa0;: par WGS 84 avec les deux changements de datum, sinon même latitude et même longitude.</translation>
    </message>
    <message>
        <source>The map shows what is left of the difference without its mean over the area, as after another false easting and northing.</source>
        <translation>La carte montre ce qui reste de la différence sans sa moyenne sur la zone, comme avec d’autres Est et Nord fictifs.</translation>
    </message>
    <message>
        <source>The difference is easting and northing of the shown system minus those of the other one, at the same place on the ground.</source>
        <translation>La différence est l’Est et le Nord du système affiché moins ceux de l’autre, au même endroit sur le terrain.</translation>
    </message>
    <message>
        <source>Choose a system to compare with</source>
        <translation>Choisir un système à comparer</translation>
    </message>
    <message>
        <source>ΔE</source>
        <translation>ΔE</translation>
    </message>
    <message>
        <source>ΔN</source>
        <translation>ΔN</translation>
    </message>
    <message>
        <source>At the mouse</source>
        <translation>Sous la souris</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Apart from it</source>
        <translation>Hors celle-ci</translation>
    </message>
    <message>
        <source>The point of the page &quot;Point&quot;.</source>
        <translation>Le point de la page «&#xa0;Point&#xa0;».</translation>
    </message>
    <message>
        <source>Over the black square.</source>
        <translation>Sur le carré noir.</translation>
    </message>
    <message>
        <source>What is left of the difference without its mean is no larger in the black square.</source>
        <translation>Ce qui reste de la différence sans sa moyenne n’est pas plus grand dans le carré noir.</translation>
    </message>
    <message>
        <source>minus %1</source>
        <translation>moins %1</translation>
    </message>
    <message>
        <source>Easting and northing of the shown system minus those of %1, as it was when it was chosen, at the same place on the ground.</source>
        <translation>Est et Nord du système affiché moins ceux de %1, tel qu’il était lors du choix, au même endroit sur le terrain.</translation>
    </message>
    <message>
        <source>One of the projections gives no result in this area.</source>
        <translation>L’une des projections ne donne aucun résultat dans cette zone.</translation>
    </message>
    <message>
        <source>Neither system defines a datum shift: both count as on WGS 84.</source>
        <translation>Aucun des systèmes ne définit de changement de datum&#xa0;: tous deux comptent comme en WGS 84.</translation>
    </message>
    <message>
        <source>No datum shift is defined by %1: it counts as on WGS 84.</source>
        <translation>%1, sans changement de datum, compte comme en WGS 84.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>For this area</source>
        <translation>Pour cette zone</translation>
    </message>
    <message>
        <source>For the point</source>
        <translation>Pour le point</translation>
    </message>
    <message>
        <source>Least distortion</source>
        <translation>Altération minimale</translation>
    </message>
    <message>
        <source>Where the largest distortion at that height is to be smallest: in the square on the map, or at the checked point.</source>
        <translation>Où l’altération maximale à cette hauteur doit être la plus petite&#xa0;: dans le carré sur la carte ou au point contrôlé.</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Conception</translation>
    </message>
    <message>
        <source>Move the meridian</source>
        <translation>Déplacer le méridien</translation>
    </message>
    <message>
        <source>Move the parallel</source>
        <translation>Déplacer le parallèle</translation>
    </message>
    <message>
        <source>There is nothing to propose here.</source>
        <translation>Il n’y a rien à proposer ici.</translation>
    </message>
    <message>
        <source>This system has no scale factor to choose.</source>
        <translation>Ce système n’a pas de facteur d’échelle à choisir.</translation>
    </message>
    <message>
        <source>The system is as good as it can be here.</source>
        <translation>Le système ne peut être meilleur ici.</translation>
    </message>
    <message>
        <source>Distortion in ppm: %1 → %2</source>
        <translation>Altération en ppm&#xa0;: %1 → %2</translation>
    </message>
    <message>
        <source>Picture of the linear distortion</source>
        <translation>Image de l’altération linéaire</translation>
    </message>
    <message>
        <source>Mean ellipsoidal height of the ground; 0 shows the grid&apos;s own distortion.</source>
        <translation>Hauteur ellipsoïdale moyenne du terrain&#xa0;; 0 montre l’altération due à la projection seule.</translation>
    </message>
    <message>
        <source>ppm</source>
        <translation>ppm</translation>
    </message>
    <message>
        <source>%1 ppm   %2, %3
E %4 %6  N %5 %6</source>
        <translation>%1 ppm   %2, %3
E %4 %6  N %5 %6</translation>
    </message>
    <message>
        <source>Point at the map for the distortion there.</source>
        <translation>Pointer sur la carte pour y lire l’altération.</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustement</translation>
    </message>
    <message>
        <source>What would meet the points best; what is not ticked is held.</source>
        <translation>Ce qui conviendrait le mieux aux points&#xa0;; ce qui n’est pas coché reste fixe.</translation>
    </message>
    <message>
        <source>before</source>
        <translation>avant</translation>
    </message>
    <message>
        <source>after ± standard deviation</source>
        <translation>après ± écart-type</translation>
    </message>
    <message>
        <source>Scale factor</source>
        <translation>Facteur d’échelle</translation>
    </message>
    <message>
        <source>False easting</source>
        <translation>Est fictif</translation>
    </message>
    <message>
        <source>False northing</source>
        <translation>Nord fictif</translation>
    </message>
    <message>
        <source>RMS, largest</source>
        <translation>EMQ, maximum</translation>
    </message>
    <message>
        <source>Misfit before</source>
        <translation>Écart avant</translation>
    </message>
    <message>
        <source>Misfit after</source>
        <translation>Écart après</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Remainder</source>
        <translation>Reste</translation>
    </message>
    <message>
        <source>Diagnosis</source>
        <translation>Diagnostic</translation>
    </message>
    <message>
        <source>%1 after</source>
        <translation>%1 après</translation>
    </message>
    <message>
        <source>Against the ground remain a rotation of %1 ± %2%3 and a scale of %4 ± %5 ppm.</source>
        <translation>Par rapport au terrain restent une rotation de %1 ± %2%3 et une échelle de %4 ± %5 ppm.</translation>
    </message>
    <message>
        <source>(not used)</source>
        <translation>(non utilisée)</translation>
    </message>
    <message>
        <source>Decimal comma</source>
        <translation>Virgule décimale</translation>
    </message>
    <message>
        <source>First line is a heading</source>
        <translation>En-têtes en première ligne</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulation</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgule</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Point-virgule</translation>
    </message>
    <message>
        <source>Blanks</source>
        <translation>Espaces</translation>
    </message>
    <message>
        <source>Columns parted by</source>
        <translation>Colonnes séparées par</translation>
    </message>
    <message>
        <source>metres</source>
        <translation>mètres</translation>
    </message>
    <message>
        <source>international feet</source>
        <translation>pieds internationaux</translation>
    </message>
    <message>
        <source>US survey feet</source>
        <translation>pieds d’arpentage US</translation>
    </message>
    <message>
        <source>Lengths in</source>
        <translation>Longueurs en</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Colonne %1</translation>
    </message>
    <message>
        <source>Columns of one kind belong together: degrees, minutes and seconds.</source>
        <translation>Les colonnes d’un même type vont ensemble&#xa0;: degrés, minutes et secondes.</translation>
    </message>
    <message>
        <source>Say which columns are latitude and longitude, or easting and northing.</source>
        <translation>Indiquer quelles colonnes sont latitude et longitude, ou Est et Nord.</translation>
    </message>
    <message numerus="yes">
        <source>%n point(s), %1 with both pairs</source>
        <translation>
            <numerusform>%n point, %1 avec les deux couples</numerusform>
            <numerusform>%n points, %1 avec les deux couples</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%n exclu</numerusform>
            <numerusform>%n exclus</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beyond the tolerance</source>
        <translation>%1 hors tolérance</translation>
    </message>
    <message>
        <source>%1 without a result</source>
        <translation>%1 sans résultat</translation>
    </message>
    <message>
        <source>%1 with a name that another has</source>
        <translation>%1 au nom porté par un autre</translation>
    </message>
    <message>
        <source>Paste, open or type points.</source>
        <translation>Coller, ouvrir ou saisir des points.</translation>
    </message>
    <message>
        <source>Out of range.</source>
        <translation>Hors limites.</translation>
    </message>
    <message>
        <source>Fitted ΔE</source>
        <translation>ΔE ajusté</translation>
    </message>
    <message>
        <source>Fitted ΔN</source>
        <translation>ΔN ajusté</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>A point without a check mark is left out of the statistics.</source>
        <translation>Un point non coché est exclu des statistiques.</translation>
    </message>
    <message>
        <source>Ellipsoidal height; 0 where there is none.</source>
        <translation>Hauteur ellipsoïdale&#xa0;; 0 s’il n’y en a pas.</translation>
    </message>
    <message>
        <source>Slanted: computed from the other pair.</source>
        <translation>Italique&#xa0;: calculé d’après l’autre couple.</translation>
    </message>
    <message>
        <source>What the fit would leave.</source>
        <translation>Ce que laisserait l’ajustement.</translation>
    </message>
    <message>
        <source>Computed from latitude and longitude, minus given.</source>
        <translation>Calculé d’après la latitude et la longitude, moins donné.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Ouvrir...</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Enregistrer...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Next marked</source>
        <translation>Marque suivante</translation>
    </message>
    <message>
        <source>The next point beyond the tolerance, or row with a remark</source>
        <translation>Le prochain point hors tolérance, ou la prochaine ligne avec remarque</translation>
    </message>
    <message>
        <source>Report...</source>
        <translation>Rapport...</translation>
    </message>
    <message>
        <source>Writes the check as a document to file with the job.</source>
        <translation>Écrit le contrôle sous forme de document à classer avec le dossier.</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolérance</translation>
    </message>
    <message>
        <source>Points that are farther off are marked.</source>
        <translation>Les points plus éloignés sont marqués.</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Du système</translation>
    </message>
    <message>
        <source>Datum of latitude, longitude and height: the system&apos;s own, or WGS 84</source>
        <translation>Datum de la latitude, de la longitude et de la hauteur&#xa0;: celui du système, ou WGS 84</translation>
    </message>
    <message>
        <source>Which false origin and scale factor would meet the points best.</source>
        <translation>Quelle origine fictive et quel facteur d’échelle conviendraient le mieux aux points.</translation>
    </message>
    <message>
        <source>All is written: that can&apos;t be cancelled any more.</source>
        <translation>Tout est écrit&#xa0;: il n’est plus possible d’annuler.</translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>Annulé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Open points</source>
        <translation>Ouvrir des points</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 ne peut être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>The clipboard</source>
        <translation>Le presse-papiers</translation>
    </message>
    <message>
        <source>%1 has too many points; nothing of it is taken.</source>
        <translation>%1 contient trop de points&#xa0;; rien n’en est repris.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n row(s) read.</source>
        <translation>
            <numerusform>%1&#xa0;: %n ligne lue.</numerusform>
            <numerusform>%1&#xa0;: %n lignes lues.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 can&apos;t be read to its end: %2</source>
        <translation>%1 ne peut être lu jusqu’à la fin&#xa0;: %2</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Computing</source>
        <translation>Calcul</translation>
    </message>
    <message>
        <source>Comparing names</source>
        <translation>Comparaison des noms</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
    <message>
        <source>Counting</source>
        <translation>Comptage</translation>
    </message>
    <message>
        <source>Point at the picture for a point&apos;s name.</source>
        <translation>Pointer sur l’image pour lire le nom d’un point.</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Only the first %1 rows are copied. Save all as CSV.</source>
        <translation>Seules les %1 premières lignes sont copiées. Pour tout avoir, enregistrer en CSV.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>%n ligne copiée.</numerusform>
            <numerusform>%n lignes copiées.</numerusform>
        </translation>
    </message>
    <message>
        <source>CSV as shown</source>
        <translation>CSV tel qu’affiché</translation>
    </message>
    <message>
        <source>CSV with all digits</source>
        <translation>CSV avec tous les chiffres</translation>
    </message>
    <message>
        <source>Save points</source>
        <translation>Enregistrer les points</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Enregistrement</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n row(s) saved.</source>
        <translation>
            <numerusform>%1&#xa0;: %n ligne enregistrée.</numerusform>
            <numerusform>%1&#xa0;: %n lignes enregistrées.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 can&apos;t be saved: %2</source>
        <translation>%1 ne peut être enregistré&#xa0;: %2</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>%1: report saved.</source>
        <translation>%1&#xa0;: rapport enregistré.</translation>
    </message>
    <message>
        <source>No row is selected.</source>
        <translation>Aucune ligne n’est sélectionnée.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) deleted; Ctrl+Z undoes that.</source>
        <translation>
            <numerusform>%n ligne supprimée&#xa0;; Ctrl+Z l’annule.</numerusform>
            <numerusform>%n lignes supprimées&#xa0;; Ctrl+Z l’annule.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Il n’y a rien à annuler.</translation>
    </message>
    <message>
        <source>Undone: the points are as they were before.</source>
        <translation>Annulé&#xa0;: les points sont comme avant.</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n point(s) from the table?</source>
        <translation>
            <numerusform>Retirer %n point du tableau&#xa0;?</numerusform>
            <numerusform>Retirer les %n points du tableau&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>All points are removed; Ctrl+Z undoes that.</source>
        <translation>Tous les points sont retirés&#xa0;; Ctrl+Z l’annule.</translation>
    </message>
    <message>
        <source>All is within the tolerance and without a remark.</source>
        <translation>Tout est dans la tolérance et sans remarque.</translation>
    </message>
    <message>
        <source>Picture of the points</source>
        <translation>Image des points</translation>
    </message>
    <message>
        <source>HTML, one file with its pictures</source>
        <translation>HTML, un fichier avec ses images</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>no document could be made</source>
        <translation>aucun document n’a pu être produit</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Contrôle</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Altération</translation>
    </message>
    <message>
        <source>Show angles in</source>
        <translation>Angles affichés en</translation>
    </message>
    <message>
        <source>A fit needs points with latitude, longitude, easting and northing.</source>
        <translation>Un ajustement demande des points avec latitude, longitude, Est et Nord.</translation>
    </message>
    <message>
        <source>A fit takes %1 points at most: leave some out.</source>
        <translation>Un ajustement prend au plus %1 points&#xa0;: en exclure.</translation>
    </message>
    <message>
        <source>The projection gives no result at one of the points.</source>
        <translation>La projection ne donne aucun résultat pour l’un des points.</translation>
    </message>
    <message>
        <source>The points do not determine these values: hold one of them, or add points.</source>
        <translation>Les points ne déterminent pas ces valeurs&#xa0;: en fixer une, ou ajouter des points.</translation>
    </message>
    <message>
        <source>east</source>
        <translation>l’est</translation>
    </message>
    <message>
        <source>north</source>
        <translation>le nord</translation>
    </message>
    <message>
        <source>west</source>
        <translation>l’ouest</translation>
    </message>
    <message>
        <source>south</source>
        <translation>le sud</translation>
    </message>
    <message>
        <source>Easting and northing are swapped.</source>
        <translation>Est et Nord sont intervertis.</translation>
    </message>
    <message>
        <source>The given eastings count %1, the northings %2.</source>
        <translation>Les valeurs Est données comptent vers %1, les valeurs Nord vers %2.</translation>
    </message>
    <message>
        <source>The given eastings and northings are in feet.</source>
        <translation>Les valeurs Est et Nord données sont en pieds.</translation>
    </message>
    <message>
        <source>The given eastings and northings are metres that were taken for feet.</source>
        <translation>Les valeurs Est et Nord données sont des mètres pris pour des pieds.</translation>
    </message>
    <message>
        <source>The given grid is turned by %1° against the computed one</source>
        <translation>Le carroyage donné est tourné de %1° par rapport à celui calculé</translation>
    </message>
    <message>
        <source>The points are of another zone: its central meridian is %1°.</source>
        <translation>Les points sont d’une autre zone&#xa0;: son méridien central est %1°.</translation>
    </message>
    <message>
        <source>%1, as by a central meridian of %2°.</source>
        <translation>%1, comme par un méridien central de %2°.</translation>
    </message>
    <message>
        <source>There is nothing in it.</source>
        <translation>Il n’y a rien dedans.</translation>
    </message>
    <message>
        <source>It is no text. Save a table as CSV first.</source>
        <translation>Ce n’est pas du texte. Enregistrer d’abord le tableau en CSV.</translation>
    </message>
    <message>
        <source>latitude</source>
        <translation>latitude</translation>
    </message>
    <message>
        <source>longitude</source>
        <translation>longitude</translation>
    </message>
    <message>
        <source>height</source>
        <translation>hauteur</translation>
    </message>
    <message>
        <source>easting</source>
        <translation>Est</translation>
    </message>
    <message>
        <source>northing</source>
        <translation>Nord</translation>
    </message>
    <message>
        <source>The line is too long for a point; its beginning is kept.</source>
        <translation>La ligne est trop longue pour un point&#xa0;; son début est conservé.</translation>
    </message>
    <message>
        <source>Can&apos;t be read: %1.</source>
        <translation>Illisible&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Out of range: %1.</source>
        <translation>Hors limites&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There are no coordinates.</source>
        <translation>Il n’y a pas de coordonnées.</translation>
    </message>
    <message>
        <source>Missing: %1.</source>
        <translation>Manque&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The system defines no datum shift.</source>
        <translation>Le système ne définit aucun changement de datum.</translation>
    </message>
    <message>
        <source>The name occurs more than once.</source>
        <translation>Le nom apparaît plus d’une fois.</translation>
    </message>
    <message>
        <source>Line: %1</source>
        <translation>Ligne&#xa0;: %1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>Seven parameters need three points or more on both datums.</source>
        <translation>Sept paramètres demandent au moins trois points dans les deux datums.</translation>
    </message>
    <message>
        <source>Three parameters need one point or more on both datums.</source>
        <translation>Trois paramètres demandent au moins un point dans les deux datums.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are the same point: leave one of them out.</source>
        <translation>«&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» sont le même point&#xa0;: exclure l’un des deux.</translation>
    </message>
    <message>
        <source>The points lie on a line, around which they leave the rotation open. Add a point beside the line, or take three parameters.</source>
        <translation>Les points sont alignés et laissent indéterminée la rotation autour de leur droite. Ajouter un point à l’écart, ou prendre trois paramètres.</translation>
    </message>
    <message>
        <source>No datum shift is as large as these points would have it. Are both places of each the same point, on the right datum?</source>
        <translation>Aucun changement de datum n’est aussi grand que ces points le voudraient. Les deux lieux de chacun sont-ils le même point, dans le bon datum&#xa0;?</translation>
    </message>
    <message>
        <source>The area is too small to tell the translations from rotations and scale (correlation %1): the values mean nothing one by one, and hold within the area only. Three parameters are recommended if what they leave will do: a standard deviation of %2 m, against %3 m of seven.</source>
        <translation>La zone est trop petite pour distinguer les translations des rotations et de l’échelle (corrélation %1)&#xa0;: prises une à une, les valeurs ne signifient rien, et ne valent que dans la zone. Trois paramètres sont à préférer si ce qu’ils laissent suffit&#xa0;: un écart-type de %2 m, contre %3 m avec sept.</translation>
    </message>
    <message>
        <source>No projection: these values make none.</source>
        <translation>Pas de projection&#xa0;: ces valeurs n’en donnent aucune.</translation>
    </message>
    <message>
        <source>Rotations in the position-vector convention (EPSG 9606, PROJ towgs84). Figures published in the coordinate-frame convention (EPSG 9607): type them as they are, then reverse their signs.</source>
        <translation>Rotations selon la convention «&#xa0;position vector&#xa0;» (EPSG 9606, PROJ towgs84). Valeurs publiées selon la convention «&#xa0;coordinate frame&#xa0;» (EPSG 9607)&#xa0;: les saisir telles quelles, puis inverser leurs signes.</translation>
    </message>
    <message>
        <source>Reverse rotation signs</source>
        <translation>Inverser le signe des rotations</translation>
    </message>
    <message>
        <source>From points...</source>
        <translation>De points...</translation>
    </message>
    <message>
        <source>Stands in exported definitions; nothing is computed from it.</source>
        <translation>Figure dans les définitions exportées&#xa0;; rien n’en est calculé.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>Shift to WGS 84</source>
        <translation>Passage à WGS 84</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Seven parameters (three: the rest 0)</source>
        <translation>Sept paramètres (trois&#xa0;: les autres à 0)</translation>
    </message>
    <message>
        <source>Estimates the shift from points known on both datums.</source>
        <translation>Estime le passage d’après des points connus dans les deux datums.</translation>
    </message>
    <message>
        <source>Datum shift</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Without a shift, coordinates on WGS 84 are unknown.</source>
        <translation>Sans passage, les coordonnées en WGS 84 sont inconnues.</translation>
    </message>
    <message>
        <source>This kind of shift is unknown here; it is kept as it is.</source>
        <translation>Ce type de passage est inconnu ici&#xa0;; il est conservé tel quel.</translation>
    </message>
    <message>
        <source>The signs of all three rotations are reversed.</source>
        <translation>Les signes des trois rotations sont inversés.</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Définition</translation>
    </message>
    <message>
        <source>PROJ definition</source>
        <translation>Définition PROJ</translation>
    </message>
    <message>
        <source>WKT dialect</source>
        <translation>Dialecte WKT</translation>
    </message>
    <message>
        <source>WKT 1 (GDAL)</source>
        <translation>WKT 1 (GDAL)</translation>
    </message>
    <message>
        <source>WKT 1 (ESRI)</source>
        <translation>WKT 1 (ESRI)</translation>
    </message>
    <message>
        <source>WKT 2:2019</source>
        <translation>WKT 2:2019</translation>
    </message>
    <message>
        <source>With identifier</source>
        <translation>Avec identifiant</translation>
    </message>
    <message>
        <source>Save as .prj</source>
        <translation>Enregistrer en .prj</translation>
    </message>
    <message>
        <source>Save group...</source>
        <translation>Enregistrer le groupe...</translation>
    </message>
    <message>
        <source>WKT</source>
        <translation>WKT</translation>
    </message>
    <message>
        <source>Where from</source>
        <translation>Provenance</translation>
    </message>
    <message>
        <source>From text...</source>
        <translation>D’un texte...</translation>
    </message>
    <message>
        <source>This form can&apos;t express the system.</source>
        <translation>Cette forme ne peut exprimer le système.</translation>
    </message>
    <message>
        <source>This form can&apos;t carry the identifier.</source>
        <translation>Cette forme ne peut porter l’identifiant.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>The file can&apos;t be written: %1</source>
        <translation>Le fichier ne peut être écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>No coordinate system</source>
        <translation>Aucun système de coordonnées</translation>
    </message>
    <message>
        <source>%1 – choose a coordinate system in the tree</source>
        <translation>%1 – choisir un système de coordonnées dans l’arbre</translation>
    </message>
    <message>
        <source>Forward to the edited values</source>
        <translation>Revenir aux valeurs modifiées</translation>
    </message>
    <message>
        <source>Back to the values before</source>
        <translation>Revenir aux valeurs d’avant</translation>
    </message>
    <message>
        <source>Ellipsoid</source>
        <translation>Ellipsoïde</translation>
    </message>
    <message>
        <source>Semi-minor axis b</source>
        <translation>Demi-petit axe b</translation>
    </message>
    <message>
        <source>Eccentricity e</source>
        <translation>Excentricité e</translation>
    </message>
    <message>
        <source>Choose an ellipsoid.</source>
        <translation>Choisir un ellipsoïde.</translation>
    </message>
    <message>
        <source>Not in the list of ellipsoids.</source>
        <translation>Absent de la liste des ellipsoïdes.</translation>
    </message>
    <message>
        <source>The figures differ from the list&apos;s ellipsoid of this name.</source>
        <translation>Les valeurs diffèrent de l’ellipsoïde de ce nom dans la liste.</translation>
    </message>
    <message>
        <source>Decimal degrees</source>
        <translation>Degrés décimaux</translation>
    </message>
    <message>
        <source>Degrees, minutes, seconds</source>
        <translation>Degrés, minutes, secondes</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Metre</source>
        <translation>Mètre</translation>
    </message>
    <message>
        <source>International foot, 0.3048 m</source>
        <translation>Pied international, 0.3048 m</translation>
    </message>
    <message>
        <source>US survey foot, 1200/3937 m</source>
        <translation>Pied d’arpentage US, 1200/3937 m</translation>
    </message>
    <message>
        <source>Lengths in metres (m), international feet (ft) or US survey feet (ftUS)</source>
        <translation>Longueurs en mètres (m), pieds internationaux (ft) ou pieds d’arpentage US (ftUS)</translation>
    </message>
    <message>
        <source>From text</source>
        <translation>D’un texte</translation>
    </message>
    <message>
        <source>Paste or type WKT, a PROJ definition, PROJJSON, or a code as EPSG:25832.</source>
        <translation>Coller ou saisir du WKT, une définition PROJ, du PROJJSON, ou un code comme EPSG:25832.</translation>
    </message>
    <message>
        <source>Understood</source>
        <translation>Compris</translation>
    </message>
    <message>
        <source>Understood:</source>
        <translation>Compris&#xa0;:</translation>
    </message>
    <message>
        <source>Geoid model</source>
        <translation>Modèle de géoïde</translation>
    </message>
    <message>
        <source>Model file</source>
        <translation>Fichier du modèle</translation>
    </message>
    <message>
        <source>Model ellipsoid</source>
        <translation>Ellipsoïde du modèle</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucun)</translation>
    </message>
    <message>
        <source>Not in the list of geoid models.</source>
        <translation>Absent de la liste des modèles de géoïde.</translation>
    </message>
    <message>
        <source>The model refers to another ellipsoid than the system.</source>
        <translation>Le modèle se rapporte à un autre ellipsoïde que le système.</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>Projection method</source>
        <translation>Méthode de projection</translation>
    </message>
    <message>
        <source>Choose the method</source>
        <translation>Choisir la méthode</translation>
    </message>
    <message>
        <source>Projection</source>
        <translation>Projection</translation>
    </message>
    <message>
        <source>Still to choose.</source>
        <translation>Reste à choisir.</translation>
    </message>
    <message>
        <source>A latitude goes with N or S.</source>
        <translation>Une latitude va avec N ou S.</translation>
    </message>
    <message>
        <source>A longitude goes with E or W.</source>
        <translation>Une longitude va avec E ou W.</translation>
    </message>
    <message>
        <source>An azimuth goes without a letter.</source>
        <translation>Un azimut va sans lettre.</translation>
    </message>
    <message>
        <source>Use a decimal point, not a comma.</source>
        <translation>Utiliser un point décimal, pas une virgule.</translation>
    </message>
    <message>
        <source>Not an angle. Examples: 7.5, 7 30 00, 7°30&apos;00&quot;.</source>
        <translation>N’est pas un angle. Exemples&#xa0;: 7.5, 7 30 00, 7°30&apos;00&quot;.</translation>
    </message>
    <message>
        <source>Only the last part may have decimals.</source>
        <translation>Seule la dernière partie peut avoir des décimales.</translation>
    </message>
    <message>
        <source>Minutes must be less than 60.</source>
        <translation>Les minutes doivent être inférieures à 60.</translation>
    </message>
    <message>
        <source>Seconds must be less than 60.</source>
        <translation>Les secondes doivent être inférieures à 60.</translation>
    </message>
    <message>
        <source>Give either a sign or a letter.</source>
        <translation>Donner soit un signe, soit une lettre.</translation>
    </message>
    <message>
        <source>Semi-major axis a</source>
        <translation>Demi-grand axe a</translation>
    </message>
    <message>
        <source>Inverse flattening 1/f</source>
        <translation>Aplatissement inverse 1/f</translation>
    </message>
    <message>
        <source>Translation X</source>
        <translation>Translation X</translation>
    </message>
    <message>
        <source>Translation Y</source>
        <translation>Translation Y</translation>
    </message>
    <message>
        <source>Translation Z</source>
        <translation>Translation Z</translation>
    </message>
    <message>
        <source>Rotation X</source>
        <translation>Rotation X</translation>
    </message>
    <message>
        <source>Rotation Y</source>
        <translation>Rotation Y</translation>
    </message>
    <message>
        <source>Rotation Z</source>
        <translation>Rotation Z</translation>
    </message>
    <message>
        <source>Scale difference</source>
        <translation>Écart d’échelle</translation>
    </message>
    <message>
        <source>A sphere.</source>
        <translation>Une sphère.</translation>
    </message>
    <message>
        <source>Unusual for the Earth.</source>
        <translation>Valeur inhabituelle pour la Terre.</translation>
    </message>
    <message>
        <source>Unusually large.</source>
        <translation>Valeur inhabituellement grande.</translation>
    </message>
    <message>
        <source>Nothing can be computed: the projection module is not installed.</source>
        <translation>Rien ne peut être calculé&#xa0;: le module de projection n’est pas installé.</translation>
    </message>
    <message>
        <source>These parameters give no projection that can be computed.</source>
        <translation>Ces paramètres ne donnent aucune projection calculable.</translation>
    </message>
    <message>
        <source>The model names no file.</source>
        <translation>Le modèle ne nomme aucun fichier.</translation>
    </message>
    <message>
        <source>Not in the folder of geoid models.</source>
        <translation>Absent du dossier des modèles de géoïde.</translation>
    </message>
    <message>
        <source>The folder of geoid models has &quot;%1&quot; instead.</source>
        <translation>Le dossier des modèles de géoïde contient «&#xa0;%1&#xa0;» à la place.</translation>
    </message>
    <message>
        <source>Not a file.</source>
        <translation>N’est pas un fichier.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>Not a length in %1 with a decimal point.</source>
        <translation>N’est pas une longueur en %1 avec point décimal.</translation>
    </message>
    <message>
        <source>Allowed: 0 (sphere), or more than 1.</source>
        <translation>Admis&#xa0;: 0 (sphère), ou plus de 1.</translation>
    </message>
    <message>
        <source>Allowed: between %1 and %2.</source>
        <translation>Admis&#xa0;: entre %1 et %2.</translation>
    </message>
    <message>
        <source>Allowed: ±%1.</source>
        <translation>Admis&#xa0;: ±%1.</translation>
    </message>
    <message>
        <source>Allowed: %1 to %2.</source>
        <translation>Admis&#xa0;: %1 à %2.</translation>
    </message>
    <message>
        <source>A value is needed.</source>
        <translation>Il faut une valeur.</translation>
    </message>
    <message>
        <source>Only digits and a decimal point.</source>
        <translation>Uniquement des chiffres et un point décimal.</translation>
    </message>
    <message>
        <source>Datum shift to WGS 84: none</source>
        <translation>Changement de datum vers WGS 84&#xa0;: aucun</translation>
    </message>
    <message>
        <source>Datum shift to WGS 84: %1</source>
        <translation>Changement de datum vers WGS 84&#xa0;: %1</translation>
    </message>
    <message>
        <source>Pasted text, %1</source>
        <translation>Texte collé, %1</translation>
    </message>
    <message>
        <source>The text counts in %1, the record in metres.</source>
        <translation>Le texte compte en %1, la fiche en mètres.</translation>
    </message>
    <message>
        <source>Its datum shift is by grids, or of another kind, and is left out.</source>
        <translation>Son changement de datum est par grilles, ou d’un autre type, et est omis.</translation>
    </message>
    <message>
        <source>Its heights are left out.</source>
        <translation>Ses hauteurs sont omises.</translation>
    </message>
    <message>
        <source>The registry has withdrawn it.</source>
        <translation>Le registre l’a retiré.</translation>
    </message>
    <message>
        <source>(line %1, column %2)</source>
        <translation>(ligne %1, colonne %2)</translation>
    </message>
    <message>
        <source>Ellipsoid: %1, a %2 m, 1/f %3</source>
        <translation>Ellipsoïde&#xa0;: %1, a %2 m, 1/f %3</translation>
    </message>
    <message>
        <source>Datum: %1</source>
        <translation>Datum&#xa0;: %1</translation>
    </message>
    <message>
        <source>not named</source>
        <translation>non nommé</translation>
    </message>
    <message>
        <source>No projection: latitudes of the points equal, or the first 0.</source>
        <translation>Pas de projection&#xa0;: latitudes des points égales, ou la première nulle.</translation>
    </message>
    <message>
        <source>No projection: the standard parallels cancel out.</source>
        <translation>Pas de projection&#xa0;: les parallèles standard s’annulent.</translation>
    </message>
    <message>
        <source>No projection yet: the system has no ellipsoid.</source>
        <translation>Pas encore de projection&#xa0;: le système n’a pas d’ellipsoïde.</translation>
    </message>
    <message>
        <source>No projection yet: choose the method.</source>
        <translation>Pas encore de projection&#xa0;: choisir la méthode.</translation>
    </message>
    <message>
        <source>No projection: the method &quot;%1&quot; is unknown.</source>
        <translation>Pas de projection&#xa0;: la méthode «&#xa0;%1&#xa0;» est inconnue.</translation>
    </message>
    <message>
        <source>No projection: the definition fits none of the methods.</source>
        <translation>Pas de projection&#xa0;: la définition ne convient à aucune des méthodes.</translation>
    </message>
    <message>
        <source>No projection: &quot;%1&quot; is missing or wrong.</source>
        <translation>Pas de projection&#xa0;: «&#xa0;%1&#xa0;» manque ou est faux.</translation>
    </message>
    <message>
        <source>No projection: a standard parallel needs the scale factor 1.</source>
        <translation>Pas de projection&#xa0;: un parallèle standard exige le facteur d’échelle 1.</translation>
    </message>
    <message>
        <source>No projection: the scale factor is missing.</source>
        <translation>Pas de projection&#xa0;: le facteur d’échelle manque.</translation>
    </message>
    <message>
        <source>Must be 1: the standard parallel sets the scale.</source>
        <translation>Doit être 1&#xa0;: le parallèle standard fixe l’échelle.</translation>
    </message>
    <message>
        <source>Unusual: scale factors lie close to 1.</source>
        <translation>Inhabituel&#xa0;: les facteurs d’échelle sont proches de 1.</translation>
    </message>
    <message>
        <source>Without effect: the origin is no pole.</source>
        <translation>Sans effet&#xa0;: l’origine n’est pas un pôle.</translation>
    </message>
    <message>
        <source>With 0° this is the plain Mercator projection.</source>
        <translation>Avec 0°, c’est la projection de Mercator simple.</translation>
    </message>
    <message>
        <source>Usually equal to the latitude of origin.</source>
        <translation>Généralement égal à la latitude d’origine.</translation>
    </message>
    <message>
        <source>The standard parallels nearly cancel out.</source>
        <translation>Les parallèles standard s’annulent presque.</translation>
    </message>
    <message>
        <source>Gives the line of %1°. For the line of this azimuth, type %2°.</source>
        <translation>Donne la ligne de %1°. Pour la ligne de cet azimut, saisir %2°.</translation>
    </message>
    <message>
        <source>Zone %1 of UTM has the central meridian %2°.</source>
        <translation>La zone UTM %1 a pour méridien central %2°.</translation>
    </message>
    <message>
        <source>Does not fit zone %1 of the false easting.</source>
        <translation>Ne correspond pas à la zone %1 de l’Est fictif.</translation>
    </message>
    <message>
        <source>Latitude of origin</source>
        <translation>Latitude d’origine</translation>
    </message>
    <message>
        <source>Latitude of centre</source>
        <translation>Latitude du centre</translation>
    </message>
    <message>
        <source>Longitude of origin</source>
        <translation>Longitude d’origine</translation>
    </message>
    <message>
        <source>Longitude of centre</source>
        <translation>Longitude du centre</translation>
    </message>
    <message>
        <source>Latitude of point 1</source>
        <translation>Latitude du point 1</translation>
    </message>
    <message>
        <source>Longitude of point 1</source>
        <translation>Longitude du point 1</translation>
    </message>
    <message>
        <source>Latitude of point 2</source>
        <translation>Latitude du point 2</translation>
    </message>
    <message>
        <source>Longitude of point 2</source>
        <translation>Longitude du point 2</translation>
    </message>
    <message>
        <source>Azimuth of the line</source>
        <translation>Azimut de la ligne</translation>
    </message>
    <message>
        <source>Standard parallel 1</source>
        <translation>Parallèle standard 1</translation>
    </message>
    <message>
        <source>Standard parallel 2</source>
        <translation>Parallèle standard 2</translation>
    </message>
    <message>
        <source>Easting at centre</source>
        <translation>Est au centre</translation>
    </message>
    <message>
        <source>Northing at centre</source>
        <translation>Nord au centre</translation>
    </message>
    <message>
        <source>Gauss-Krüger (scale factor 1)</source>
        <translation>Gauss-Krüger (facteur d’échelle 1)</translation>
    </message>
    <message>
        <source>Transverse Mercator</source>
        <translation>Mercator transverse</translation>
    </message>
    <message>
        <source>Mercator</source>
        <translation>Mercator</translation>
    </message>
    <message>
        <source>Mercator (standard parallel)</source>
        <translation>Mercator (parallèle standard)</translation>
    </message>
    <message>
        <source>Oblique Mercator (azimuth)</source>
        <translation>Mercator oblique (azimut)</translation>
    </message>
    <message>
        <source>Stereographic</source>
        <translation>Stéréographique</translation>
    </message>
    <message>
        <source>Oblique Stereographic (double)</source>
        <translation>Stéréographique oblique (double)</translation>
    </message>
    <message>
        <source>Lambert Conic Conformal (1SP)</source>
        <translation>Lambert conique conforme (1SP)</translation>
    </message>
    <message>
        <source>Lambert Conic Conformal (2SP)</source>
        <translation>Lambert conique conforme (2SP)</translation>
    </message>
    <message>
        <source>Oblique Mercator (two points)</source>
        <translation>Mercator oblique (deux points)</translation>
    </message>
    <message>
        <source>Cassini-Soldner</source>
        <translation>Cassini-Soldner</translation>
    </message>
    <message>
        <source>the name</source>
        <translation>le nom</translation>
    </message>
    <message>
        <source>the ellipsoid&apos;s name</source>
        <translation>le nom de l’ellipsoïde</translation>
    </message>
    <message>
        <source>the projection method</source>
        <translation>la méthode de projection</translation>
    </message>
    <message>
        <source>the datum shift</source>
        <translation>le changement de datum</translation>
    </message>
    <message>
        <source>This form can&apos;t be imported again.</source>
        <translation>Cette forme ne peut être réimportée.</translation>
    </message>
    <message>
        <source>Does not come back with an import of this form: %1.</source>
        <translation>Ne revient pas à l’importation de cette forme&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Other software may count easting and northing from the natural origin.</source>
        <translation>D’autres logiciels peuvent compter Est et Nord depuis l’origine naturelle.</translation>
    </message>
    <message>
        <source>Position-vector convention (EPSG 9606, PROJ towgs84)</source>
        <translation>Convention «&#xa0;position vector&#xa0;» (EPSG 9606, PROJ towgs84)</translation>
    </message>
    <message>
        <source>of an unknown kind</source>
        <translation>d’un type inconnu</translation>
    </message>
    <message>
        <source>A geographic system: latitude and longitude, without a projection.</source>
        <translation>Un système géographique&#xa0;: latitude et longitude, sans projection.</translation>
    </message>
    <message>
        <source>A geocentric system: X, Y and Z, without a projection.</source>
        <translation>Un système géocentrique&#xa0;: X, Y et Z, sans projection.</translation>
    </message>
    <message>
        <source>A system of heights, without a projection.</source>
        <translation>Un système d’altitudes, sans projection.</translation>
    </message>
    <message>
        <source>A local system, without a place on the Earth.</source>
        <translation>Un système local, sans lieu sur la Terre.</translation>
    </message>
    <message>
        <source>No system that is projected.</source>
        <translation>N’est pas un système projeté.</translation>
    </message>
    <message>
        <source>None of the methods holds this projection exactly: %1.</source>
        <translation>Aucune des méthodes ne rend exactement cette projection&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The axes do not point east and north, but: %1.</source>
        <translation>Les axes ne pointent pas vers l’est et le nord, mais&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The grid is turned by %1°, not by the azimuth of the line, %2°.</source>
        <translation>Le carroyage est tourné de %1°, non de l’azimut de la ligne, %2°.</translation>
    </message>
    <message>
        <source>With the azimuth 90° easting and northing can&apos;t count from the natural origin.</source>
        <translation>Avec l’azimut 90°, Est et Nord ne peuvent compter depuis l’origine naturelle.</translation>
    </message>
    <message>
        <source>The standard parallel, %1°, is not the latitude of origin, %2°, as this method has it.</source>
        <translation>Le parallèle standard, %1°, n’est pas la latitude d’origine, %2°, comme le veut cette méthode.</translation>
    </message>
    <message>
        <source>A polar projection that names no pole, or does not say its scale in one way.</source>
        <translation>Une projection polaire qui ne nomme aucun pôle, ou ne dit pas son échelle d’une seule façon.</translation>
    </message>
    <message>
        <source>A parameter is missing: %1.</source>
        <translation>Un paramètre manque&#xa0;: %1.</translation>
    </message>
    <message>
        <source>A parameter is unknown: %1.</source>
        <translation>Un paramètre est inconnu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>A parameter does not belong to the method: %1.</source>
        <translation>Un paramètre n’appartient pas à la méthode&#xa0;: %1.</translation>
    </message>
    <message>
        <source>A parameter has two values: %1.</source>
        <translation>Un paramètre a deux valeurs&#xa0;: %1.</translation>
    </message>
    <message>
        <source>A value is no number, or out of range: %1.</source>
        <translation>Une valeur n’est pas un nombre, ou est hors limites&#xa0;: %1.</translation>
    </message>
    <message>
        <source>A unit is missing, or not what its name says: %1.</source>
        <translation>Une unité manque, ou n’est pas ce que dit son nom&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The prime meridian&apos;s longitude is not that of its name: %1.</source>
        <translation>La longitude du méridien origine n’est pas celle de son nom&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The ellipsoid is unknown, or its axes leave a doubt.</source>
        <translation>L’ellipsoïde est inconnu, ou ses axes laissent un doute.</translation>
    </message>
    <message>
        <source>Twice, or with a number too many (a decimal comma?): %1.</source>
        <translation>En double, ou avec un nombre de trop (une virgule décimale&#xa0;?)&#xa0;: %1.</translation>
    </message>
    <message>
        <source>PROJ makes another projection of these parameters, or none.</source>
        <translation>PROJ fait de ces paramètres une autre projection, ou aucune.</translation>
    </message>
    <message>
        <source>The text names a file, which is not read: %1.</source>
        <translation>Le texte nomme un fichier, qui n’est pas lu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No WKT, no PROJJSON, no PROJ definition and no code of a registry.</source>
        <translation>Ni WKT, ni PROJJSON, ni définition PROJ, ni code d’un registre.</translation>
    </message>
    <message>
        <source>Too long, or brackets too deep: up to %1 bytes are read.</source>
        <translation>Trop long, ou parenthèses trop profondes&#xa0;: %1 octets au plus sont lus.</translation>
    </message>
    <message>
        <source>No registry has the system %1.</source>
        <translation>Aucun registre n’a le système %1.</translation>
    </message>
    <message>
        <source>PROJ can&apos;t read it: %1</source>
        <translation>PROJ ne peut le lire&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 (deprecated)</source>
        <translation>%1 (obsolète)</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>northing comes first</source>
        <translation>le Nord vient en premier</translation>
    </message>
    <message>
        <source>in US survey feet</source>
        <translation>en pieds d’arpentage US</translation>
    </message>
    <message>
        <source>in international feet</source>
        <translation>en pieds internationaux</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>en %1</translation>
    </message>
    <message>
        <source>%1 is missing before the easting</source>
        <translation>%1 manque devant l’Est</translation>
    </message>
    <message>
        <source>%1 before the easting is the zone</source>
        <translation>%1 devant l’Est est la zone</translation>
    </message>
    <message>
        <source>if %1</source>
        <translation>si %1</translation>
    </message>
    <message>
        <source>the same</source>
        <translation>identique</translation>
    </message>
    <message>
        <source>own</source>
        <translation>personnel</translation>
    </message>
    <message>
        <source>With the system&apos;s datum shift, the place being on WGS 84</source>
        <translation>Avec le changement de datum du système, le lieu étant en WGS 84</translation>
    </message>
    <message>
        <source>From the place to where the system has the coordinates; of several points the root mean square</source>
        <translation>Du lieu à l’endroit où le système a ces coordonnées&#xa0;; pour plusieurs points, la moyenne quadratique</translation>
    </message>
    <message>
        <source>What is left of the distances without what all points have in common, as a datum shift: the smaller, the better the system fits</source>
        <translation>Ce qui reste des distances sans ce que tous les points ont en commun, comme un changement de datum&#xa0;: plus c’est petit, mieux le système convient</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Dispersion</translation>
    </message>
    <message>
        <source>EPSG</source>
        <translation>EPSG</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Condition</translation>
    </message>
    <message>
        <source>EPSG:%1, %2</source>
        <translation>EPSG:%1, %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>absent</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>In the registry</source>
        <translation>Dans le registre</translation>
    </message>
    <message>
        <source>The record is no system of the registry.</source>
        <translation>La fiche n’est pas un système du registre.</translation>
    </message>
    <message>
        <source>Says that this is %1.</source>
        <translation>Affirme qu’il s’agit de %1.</translation>
    </message>
    <message>
        <source>Says that this is %1, on the datum %2.</source>
        <translation>Affirme qu’il s’agit de %1, dans le datum %2.</translation>
    </message>
    <message>
        <source>The registry leaves the datum open.</source>
        <translation>Le registre laisse le datum ouvert.</translation>
    </message>
    <message>
        <source>The registry&apos;s datum is %1.</source>
        <translation>Le datum du registre est %1.</translation>
    </message>
    <message>
        <source>The registry counts in %1, the record in metres.</source>
        <translation>Le registre compte en %1, la fiche en mètres.</translation>
    </message>
    <message>
        <source>The registry&apos;s figures differ a little.</source>
        <translation>Les valeurs du registre diffèrent un peu.</translation>
    </message>
    <message>
        <source>Looking through the EPSG registry...</source>
        <translation>Recherche dans le registre EPSG...</translation>
    </message>
    <message>
        <source>%1: the same to %2 mm over its area</source>
        <translation>%1&#xa0;: identique à %2 mm près sur sa zone</translation>
    </message>
    <message>
        <source>Also %1</source>
        <translation>Aussi %1</translation>
    </message>
    <message>
        <source>No system of the EPSG registry is like it</source>
        <translation>Aucun système du registre EPSG ne lui ressemble</translation>
    </message>
    <message>
        <source>As %1, but: %2</source>
        <translation>Comme %1, mais&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 %2 (there %3)</source>
        <translation>%1 %2 (au registre %3)</translation>
    </message>
    <message>
        <source>EPSG code, words of the name or of the area</source>
        <translation>Code EPSG, mots du nom ou de la zone</translation>
    </message>
    <message>
        <source>Deprecated ones too</source>
        <translation>Aussi les obsolètes</translation>
    </message>
    <message>
        <source>Covers the point</source>
        <translation>Couvre le point</translation>
    </message>
    <message>
        <source>Systems found: %1</source>
        <translation>Systèmes trouvés&#xa0;: %1</translation>
    </message>
    <message>
        <source>A place, roughly, and the coordinates that it has in the unknown system; more points narrow it down.</source>
        <translation>Un lieu approximatif et les coordonnées qu’il a dans le système inconnu&#xa0;; d’autres points restreignent le choix.</translation>
    </message>
    <message>
        <source>Paste rows</source>
        <translation>Coller des lignes</translation>
    </message>
    <message>
        <source>Lines of latitude, longitude, first and second coordinate</source>
        <translation>Lignes de latitude, longitude, première et deuxième coordonnée</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Recherche...</translation>
    </message>
    <message>
        <source>Systems found so far: %1</source>
        <translation>Systèmes trouvés jusqu’ici&#xa0;: %1</translation>
    </message>
    <message>
        <source>No system that is used there can have these coordinates.</source>
        <translation>Aucun système en usage à cet endroit ne peut avoir ces coordonnées.</translation>
    </message>
    <message>
        <source>Distances are without datum shift, which can move a place by some hundred metres.</source>
        <translation>Les distances sont sans changement de datum, qui peut déplacer un lieu de quelques centaines de mètres.</translation>
    </message>
    <message numerus="yes">
        <source>No system gives these coordinates within 50 km of the place. The nearest %n:</source>
        <translation>
            <numerusform>Aucun système ne donne ces coordonnées à moins de 50 km du lieu. Le plus proche (%n)&#xa0;:</numerusform>
            <numerusform>Aucun système ne donne ces coordonnées à moins de 50 km du lieu. Les %n plus proches&#xa0;:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 from the place, with the system&apos;s datum shift</source>
        <translation>à %1 du lieu, avec le changement de datum du système</translation>
    </message>
    <message>
        <source>%1 from the place, without datum shift</source>
        <translation>à %1 du lieu, sans changement de datum</translation>
    </message>
    <message>
        <source>, %1 with the one below</source>
        <translation>, à %1 avec celui ci-dessous</translation>
    </message>
    <message>
        <source>Nothing to paste: lines of latitude, longitude and two coordinates.</source>
        <translation>Rien à coller&#xa0;: des lignes de latitude, longitude et deux coordonnées.</translation>
    </message>
    <message>
        <source>First coordinate</source>
        <translation>Première coordonnée</translation>
    </message>
    <message>
        <source>Second coordinate</source>
        <translation>Deuxième coordonnée</translation>
    </message>
    <message>
        <source>%1 of point %2</source>
        <translation>%1 du point %2</translation>
    </message>
    <message>
        <source>Point %1, %2: %3</source>
        <translation>Point %1, %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1, accuracy %2 m</source>
        <translation>%1, précision %2 m</translation>
    </message>
    <message>
        <source>From registry</source>
        <translation>Du registre</translation>
    </message>
    <message>
        <source>By name or code</source>
        <translation>Par nom ou code</translation>
    </message>
    <message>
        <source>From coordinates</source>
        <translation>D’après des coordonnées</translation>
    </message>
    <message>
        <source>Datum shift to WGS 84</source>
        <translation>Changement de datum vers WGS 84</translation>
    </message>
    <message>
        <source>Copies this system&apos;s ellipsoid, projection, datum shift and geoid model; name and remark stay.</source>
        <translation>Copie l’ellipsoïde, la projection, le changement de datum et le modèle de géoïde de ce système&#xa0;; nom et remarque restent.</translation>
    </message>
    <message>
        <source>As in the catalogue</source>
        <translation>Comme dans le catalogue</translation>
    </message>
    <message>
        <source>Of the own catalogue: %1</source>
        <translation>Du catalogue personnel&#xa0;: %1</translation>
    </message>
    <message>
        <source>The file is there already.</source>
        <translation>Le fichier existe déjà.</translation>
    </message>
    <message>
        <source>The file there is an older one.</source>
        <translation>Le fichier présent est plus ancien.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>Left out. %1</source>
        <translation>Omis. %1</translation>
    </message>
    <message>
        <source>There already</source>
        <translation>Déjà présent</translation>
    </message>
    <message>
        <source>Saved. %1</source>
        <translation>Enregistré. %1</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Omis&#xa0;: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Save group as .prj</source>
        <translation>Enregistrer le groupe en .prj</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Copy summary</source>
        <translation>Copier le résumé</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Keep existing</source>
        <translation>Garder l’existant</translation>
    </message>
    <message numerus="yes">
        <source>There already: %n of %1 files. Overwrite them?</source>
        <translation>
            <numerusform>Déjà présent&#xa0;: %n fichier sur %1. Le remplacer&#xa0;?</numerusform>
            <numerusform>Déjà présents&#xa0;: %n fichiers sur %1. Les remplacer&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>Ce dossier n’existe pas.</translation>
    </message>
    <message>
        <source>Systems: %1</source>
        <translation>Systèmes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Shift from points</source>
        <translation>Passage d’après des points</translation>
    </message>
    <message>
        <source>Own datum</source>
        <translation>Datum du système</translation>
    </message>
    <message>
        <source>Latitude, longitude, height</source>
        <translation>Latitude, longitude, hauteur</translation>
    </message>
    <message>
        <source>Easting, northing, height</source>
        <translation>Est, Nord, hauteur</translation>
    </message>
    <message>
        <source>Geocentric X, Y, Z</source>
        <translation>X, Y, Z géocentriques</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Seven</source>
        <translation>Sept</translation>
    </message>
    <message>
        <source>Three</source>
        <translation>Trois</translation>
    </message>
    <message>
        <source>Points are typed, or pasted as lines: name and three numbers on either datum.</source>
        <translation>Points à saisir, ou à coller en lignes&#xa0;: nom et trois nombres dans l’un ou l’autre datum.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Conseil</translation>
    </message>
    <message>
        <source>Just enough points: nothing is left over to tell how good the shift is.</source>
        <translation>Juste assez de points&#xa0;: aucune redondance pour juger de la qualité du passage.</translation>
    </message>
    <message>
        <source>Standard deviation of a coordinate: %1 m (redundancy %2).</source>
        <translation>Écart-type d’une coordonnée&#xa0;: %1 m (redondance %2).</translation>
    </message>
    <message>
        <source>%1 with %2 %3</source>
        <translation>%1 avec %2 %3</translation>
    </message>
    <message>
        <source>Largest correlations: %1.</source>
        <translation>Plus fortes corrélations&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Lines that can&apos;t be used: %1.</source>
        <translation>Lignes inutilisables&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The projection gives no result here.</source>
        <translation>La projection ne donne aucun résultat ici.</translation>
    </message>
    <message>
        <source>This place is not on the Earth.</source>
        <translation>Ce lieu n’est pas sur la Terre.</translation>
    </message>
    <message>
        <source>The other points speak against this one: check it, or leave it out.</source>
        <translation>Les autres points contredisent celui-ci&#xa0;: le vérifier, ou l’exclure.</translation>
    </message>
    <message>
        <source>Easting, m</source>
        <translation>Est, m</translation>
    </message>
    <message>
        <source>Northing, m</source>
        <translation>Nord, m</translation>
    </message>
    <message>
        <source>Height, m</source>
        <translation>Hauteur, m</translation>
    </message>
    <message>
        <source>WGS 84 X, m</source>
        <translation>WGS 84 X, m</translation>
    </message>
    <message>
        <source>WGS 84 latitude</source>
        <translation>Lat. WGS 84</translation>
    </message>
    <message>
        <source>WGS 84 Y, m</source>
        <translation>WGS 84 Y, m</translation>
    </message>
    <message>
        <source>WGS 84 longitude</source>
        <translation>Long. WGS 84</translation>
    </message>
    <message>
        <source>WGS 84 Z, m</source>
        <translation>WGS 84 Z, m</translation>
    </message>
    <message>
        <source>WGS 84 height, m</source>
        <translation>Haut. WGS 84, m</translation>
    </message>
    <message>
        <source>Before, m</source>
        <translation>Avant, m</translation>
    </message>
    <message>
        <source>East, mm</source>
        <translation>Est, mm</translation>
    </message>
    <message>
        <source>North, mm</source>
        <translation>Nord, mm</translation>
    </message>
    <message>
        <source>Up, mm</source>
        <translation>Haut, mm</translation>
    </message>
    <message>
        <source>Smallest value: %1 %2 at easting %3, northing %4.</source>
        <translation>Valeur minimale&#xa0;: %1 %2 à Est %3, Nord %4.</translation>
    </message>
    <message>
        <source>Largest value: %1 %2 at easting %3, northing %4.</source>
        <translation>Valeur maximale&#xa0;: %1 %2 à Est %3, Nord %4.</translation>
    </message>
    <message>
        <source>The picture: easting %1 to %2, northing %3 to %4, in %5.</source>
        <translation>L’image&#xa0;: Est %1 à %2, Nord %3 à %4, en %5.</translation>
    </message>
    <message>
        <source>The arrow keys move a mark over it.</source>
        <translation>Les touches fléchées y déplacent un repère.</translation>
    </message>
    <message>
        <source>The picture is empty.</source>
        <translation>L’image est vide.</translation>
    </message>
    <message>
        <source>%1 before</source>
        <translation>%1 avant</translation>
    </message>
    <message>
        <source>First lines</source>
        <translation>Premières lignes</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Points drawn: %1, beyond the tolerance: %2, left out: %3.</source>
        <translation>Points dessinés&#xa0;: %1, hors tolérance&#xa0;: %2, exclus&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Largest difference: %1 %2; differences are drawn %3.</source>
        <translation>Plus grande différence&#xa0;: %1 %2&#xa0;; les différences sont dessinées %3.</translation>
    </message>
    <message>
        <source>Copy the PROJ definition</source>
        <translation>Copier la définition PROJ</translation>
    </message>
    <message>
        <source>Copy the WKT</source>
        <translation>Copier le WKT</translation>
    </message>
    <message>
        <source>This comma could part thousands: use a decimal point.</source>
        <translation>Cette virgule pourrait séparer les milliers&#xa0;: utiliser un point décimal.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A name, and what is said of it</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Systems found: %1.</source>
        <translation>Systèmes trouvés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>what a system says of heights</comment>
        <translation>Altitude</translation>
    </message>
</context>
<context>
    <name>DlgCoordSysGroups</name>
    <message>
        <source>CoordSysGroup</source>
        <translation>Systèmes de coordonnées</translation>
    </message>
    <message>
        <source>AddSysGroup</source>
        <translation>Nouveau groupe</translation>
    </message>
    <message>
        <source>ImportCoordSys</source>
        <translation>Importer des systèmes</translation>
    </message>
    <message>
        <source>AddCoordSys</source>
        <translation>Nouveau système</translation>
    </message>
    <message>
        <source>EditSysGroup</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>DelSysGroup</source>
        <translation>Supprimer le groupe</translation>
    </message>
    <message>
        <source>EditSys</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>DelSys</source>
        <translation>Supprimer le système</translation>
    </message>
    <message>
        <source>are you sure delete coord system group %1 ?</source>
        <translation>Supprimer vraiment le groupe %1&#xa0;?</translation>
    </message>
    <message>
        <source>are you sure delete coord system %1 ?</source>
        <translation>Supprimer vraiment le système de coordonnées %1&#xa0;?</translation>
    </message>
    <message>
        <source>Selecte WKT file</source>
        <translation>Choisir des fichiers WKT</translation>
    </message>
    <message>
        <source>Import file failed!</source>
        <translation>Échec de l’importation du fichier&#xa0;!</translation>
    </message>
    <message>
        <source>Import file isn&apos;t projection coordinates!</source>
        <translation>Le fichier importé ne contient pas de système de coordonnées projeté&#xa0;!</translation>
    </message>
    <message>
        <source>The Imported projection coordinates already exist in the group!</source>
        <translation>Le système de coordonnées projeté importé existe déjà dans le groupe&#xa0;!</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>DlgInputName</name>
    <message>
        <source>please input name</source>
        <translation>Saisir un nom</translation>
    </message>
    <message>
        <source>please input valid content!</source>
        <translation>Saisir un nom valable&#xa0;!</translation>
    </message>
    <message>
        <source>has same as coord group name!</source>
        <translation>Un groupe porte déjà ce nom&#xa0;!</translation>
    </message>
    <message>
        <source>has same as coord system name!</source>
        <translation>Un système porte déjà ce nom&#xa0;!</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>QFile</name>
    <message>
        <source>Filename refers to a directory</source>
        <translation>Le nom de fichier désigne un dossier</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erreur inconnue</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Do you want to exit program?</source>
        <translation>Quitter le programme&#xa0;?</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>please input correct param!</source>
        <translation>Saisir des paramètres valables&#xa0;!</translation>
    </message>
    <message>
        <source>Are you sure you want to delete ellipsoid [%1]?</source>
        <translation>Supprimer vraiment l’ellipsoïde [%1]&#xa0;?</translation>
    </message>
    <message>
        <source>has same name as system, whether cover?</source>
        <translation>Un ellipsoïde personnel porte déjà ce nom. Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>new add ellipsoid name can&apos;t same as system!</source>
        <translation>Un ellipsoïde fourni porte déjà ce nom&#xa0;!</translation>
    </message>
    <message>
        <source>Edit Ellipsoid</source>
        <translation>Modifier les ellipsoïdes</translation>
    </message>
    <message>
        <source>Ellipsoid Name</source>
        <translation>Nom de l’ellipsoïde</translation>
    </message>
    <message>
        <source>ellipsoid a(m)</source>
        <translation>Demi-grand axe a (m)</translation>
    </message>
    <message>
        <source>ellipsoid f</source>
        <translation>Aplatissement inverse 1/f</translation>
    </message>
    <message>
        <source>Are you sure you want to delete geoid [%1]?</source>
        <translation>Supprimer vraiment le modèle de géoïde [%1]&#xa0;?</translation>
    </message>
    <message>
        <source>has same file name, whether or not covered?</source>
        <translation>Un modèle de géoïde personnel porte déjà ce nom. Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>new geoid name can&apos;t same with system name!</source>
        <translation>Un modèle de géoïde fourni porte déjà ce nom&#xa0;!</translation>
    </message>
    <message>
        <source>New Geoid</source>
        <translation>Modèles de géoïde</translation>
    </message>
    <message>
        <source>Geoid Name</source>
        <translation>Modèle de géoïde</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Chemin du fichier</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Parcourir</translation>
    </message>
    <message>
        <source>selete file</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>Geiod File(*.ggf *.vgf)</source>
        <translation>Fichier de géoïde (*.ggf *.vgf)</translation>
    </message>
    <message>
        <source>AddGeoid</source>
        <translation>Modifier les modèles de géoïde</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>VornCoordSysMainWindow</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Data is changed!</source>
        <translation>Enregistrer les modifications&#xa0;?</translation>
    </message>
    <message>
        <source>Coordinate System Manager</source>
        <translation>Gestionnaire de systèmes de coordonnées</translation>
    </message>
</context>
</TS>
