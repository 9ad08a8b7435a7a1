-- Rates of the trades, "regular" hours only
SELECT Trade, Rate * 1.5 AS Overtime, 'C:\Rates\{1998}' AS Path
  FROM Labor
 WHERE Rate > 38.00 AND Note LIKE '%type II%'
 ORDER BY Trade;
