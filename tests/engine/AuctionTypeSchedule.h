// A schedule in which no two prices are alike, so that a mixed-up key shows.
#pragma once

#include "support/Prices.h"

namespace quillet {

inline void UseAuctionTypeSchedule(const std::string& sMore = "") {
  UseSchedule(
      Tiers("Opening", {{"0.01", "0.99", "0.2"}, {"1", "9.99", "0.4"}, {"10", "-1", "0.6"}}) +
      Tiers("Reserve", {{"0.01", "49.99", "1"},
                        {"50", "199.99", "2"},
                        {"200", "1999.99", "3"},
                        {"2000", "-1", "4"}}) +
      Tiers("ReserveRealEstate",
            {{"0.01", "49.99", "5"}, {"50", "199.99", "6"}, {"200", "-1", "1"}}) +
      Tiers("Final", {{"0", "25", "5"}, {"25", "1000", "2.5"}, {"1000", "-1", "1"}}) +
      Tiers("ShopFinal", {{"0", "-1", "10"}}) +
      Tiers("FinalMotor", {{"1", "100", "20"}, {"100", "500", "5"}, {"500", "900", "30"}}) +
      "ReserveMax,20\nReserveRealEstateMax,7\n"
      "AuctionTypeMotor,16\nAuctionTypeRealEstate,35\nFinalRealEstate,55\n"
      "ReserveMotor,13\nReserveRealEstate,8\n"
      "AuctionTypeMotorPassenger,41\nTransactionFeeMotorPassenger,51\nReserveMotorPassenger,61\n"
      "AuctionTypeMotorMotorcycle,42\nTransactionFeeMotorMotorcycle,62\nReserveMotorMotorbike,72\n"
      "AuctionTypeMotorPowersports,43\nTransactionFeeMotorPowersports,73\n"
      "ReserveMotorPowersports,83\n"
      "AuctionTypeMotorPocketBikes,44\nTransactionFeeMotorPocketBikes,84\n"
      "ReserveMotorPocketBikes,94\n"
      "AuctionTypeMotorOther,45\nTransactionFeeMotorOther,95\nReserveMotorOther,105\n"
      "AuctionTypeRealEstateTimeshareAuction10,100\nAuctionTypeRealEstateTimeshareAuction30,101\n"
      "AuctionTypeRealEstateTimeshareAd30,102\nAuctionTypeRealEstateTimeshareAd90,103\n"
      "AuctionTypeRealEstateOtherAuction10,110\nAuctionTypeRealEstateOtherAuction30,111\n"
      "AuctionTypeRealEstateOtherAd30,112\nAuctionTypeRealEstateOtherAd90,113\n"
      "AuctionTypeRealEstateAuction10,120\nAuctionTypeRealEstateOther,121\n"
      "FinalRealEstateTimeshare,45\nFinalRealEstateOther,46\n"
      "AuctionTypeBusiness,21\nReserveBusiness,22\nFinalBusiness,1\nFinalBusinessMax,250\n"
      "ShopInsertionFee,0.07\nShopInsertionFee90,0.05\nShopInsertionSurcharge90,0.1\n"
      "ShopInsertionSurcharge60,0.5\n" +
      sMore);
}

}  // namespace quillet
