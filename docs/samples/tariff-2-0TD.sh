# Makes the Spanish access tariff 2.0TD of 2026: hour types, day types and calendar.
set -e
tariff='Tariff 2-0TD'
qvdisc add --name "$tariff" --description 'Punta, llano y valle'

qvdisc hour-type add "$tariff" 'P1 punta' --colour '#E05A4E'
qvdisc hour-type add "$tariff" 'P2 llano' --colour '#F2B134'
qvdisc hour-type add "$tariff" 'P3 valle' --colour '#5DB075'

qvdisc day-type add "$tariff" 'Working day' --colour '#6FA8DC' \
  --slot '00:00-08:00 P3 valle' \
  --slot '08:00-10:00 P2 llano' \
  --slot '10:00-14:00 P1 punta' \
  --slot '14:00-18:00 P2 llano' \
  --slot '18:00-22:00 P1 punta' \
  --slot '22:00-24:00 P2 llano'
qvdisc day-type add "$tariff" 'Weekend or holiday' --colour '#C9A0DC' \
  --slot '00:00-24:00 P3 valle'

# The calendar of 2026: the rules first, then the national holidays that fall on a working day.
qvdisc mark "$tariff" --weekdays mon-fri --months 1-12 --year 2026 'Working day'
qvdisc mark "$tariff" --weekdays sat,sun --months 1-12 --year 2026 'Weekend or holiday'
qvdisc mark "$tariff" 2026-01-01 2026-01-06 2026-05-01 2026-10-12 2026-12-08 2026-12-25 \
  'Weekend or holiday'

qvdisc show "$tariff"
