#!/usr/bin/env bash
# icu-data.sh <ICU's source> <folder>: makes <folder>/icudt.S, which holds what the program asks of ICU and no more: the
# order of texts, and for the sample workstation the names of countries, their areas and currencies in Italian.
set -euo pipefail
PATH=$PATH:/usr/sbin # for users who don't have ICU's tools in theirs
whole=$(echo "$1"/source/data/in/icudt*l.dat)
name=$(basename "$whole" l.dat)
mkdir -p "$2"
cd "$2"

cat >wanted.txt <<'END'
pool.res root.res res_index.res en.res it.res
icuver.res likelySubtags.res metadata.res supplementalData.res keyTypeData.res numberingSystems.res
currencyNumericCodes.res timezoneTypes.res
pnames.icu cnvalias.icu nfkc.nrm nfkc_cf.nrm
coll/ucadata.icu coll/pool.res coll/root.res coll/res_index.res coll/en.res coll/en_US.res coll/it.res
region/pool.res region/root.res region/res_index.res region/en.res region/it.res
curr/pool.res curr/root.res curr/supplementalData.res curr/res_index.res curr/en.res curr/it.res
END
icupkg -l "$whole" | grep -vxF -f <(tr ' ' '\n' <wanted.txt) >unwanted.txt
icupkg -r unwanted.txt "$whole" "${name}l.dat"
genccode -a gcc-mingw64 -e "$name" -d . "${name}l.dat"
mv "${name}"*.S icudt.S
