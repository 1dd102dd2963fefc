#include "../detail/Entry.h"
#include "Families.h"

#include <OBMS/OBMSModule.h>

namespace APIModule {

BOOST_DESCRIBE_STRUCT(PersonOrgInfo, (), (orgCode, orgName))
BOOST_DESCRIBE_STRUCT(GetPageAccessAuthorizePersonsReq, (),
                      (page, pageSize, containChild, keyword, deviceCode, orgCode, pointIds))
BOOST_DESCRIBE_STRUCT(AccessAuthorizePersonInfo, (), (personId, personName, orgCode, orgName, orgInfos))
BOOST_DESCRIBE_STRUCT(GetPageAccessAuthorizePersonsResp, (), (totalCount, pageData))
BOOST_DESCRIBE_STRUCT(GetManagePersonReq, (), (deviceCode))
BOOST_DESCRIBE_STRUCT(ManagePersonInfo, (), (personId, personName, orgCode, orgName, errorCode, orgInfos))
BOOST_DESCRIBE_STRUCT(SetManagePersonReq, (), (deviceCode, personIds))
BOOST_DESCRIBE_STRUCT(GetPointAccessRules, (), (pointId, ruleType, hasOfflinePoint))
BOOST_DESCRIBE_STRUCT(RuleInfo, (), (ruleId, ruleName, ruleType, hasOfflinePoint))

BOOST_DESCRIBE_STRUCT(AcsCardConfigParam, (), (enableDesfire, enableReadEncryptContent))
BOOST_DESCRIBE_STRUCT(ConfigDesFireFailureReq, (), (page, pageSize, keyword))
BOOST_DESCRIBE_STRUCT(DesfireFailureInfo, (), (id, deviceCode, deviceName, deviceIp, reason))
BOOST_DESCRIBE_STRUCT(GetPageConfigDesfireFailureResp, (), (totalCount, pageData))
BOOST_DESCRIBE_STRUCT(DeleteAddressBookParam, (), (deleteAll, vtoDeviceCode, vthDeviceCodes))

}  // namespace APIModule

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
using Obms = APIModule::COBMSModule;

void AddObmsCalls(std::vector<Call>& calls)
{
    AddSubject(
        calls, "Access-control persons and rules",
        {
            Entry<&Obms::PacketGetPageAccessAuthorizePersons, &Obms::ParseGetPageAccessAuthorizePersons>(
                "Reads one page of the persons with access", "req"),
            Entry<&Obms::PacketGetManagePersons, &Obms::ParseGetManagePersons>("Lists the persons managed on a device",
                                                                               "req"),
            Entry<&Obms::PacketSetManagePersons>("Replaces the persons managed on a device", "req"),
            Entry<&Obms::PackGetPointRules, &Obms::ParesGetPointRules>("Lists the rules of an access point", "req"),
            Entry<&Obms::PackPersonResetAntiPass>("Resets the anti-pass time of a person", "personId"),
        });
    AddSubject(
        calls, "Cards, intercom and alarm hosts",
        {
            Entry<&Obms::PackGetConfigDesfireInfo, &Obms::ParseGetConfigDesfireInfo>("Reads the card configuration"),
            Entry<&Obms::PackUpdateConfigDesfireInfo>("Writes the card configuration", "param"),
            Entry<&Obms::PackGetPageConfigDesfireFailInfo, &Obms::ParseGetPageConfigDesfireFailInfo>(
                "Reads one page of the devices that failed to take the card configuration", "req"),
            Entry<&Obms::PackReissueConfigDesfire>("Sends the card configuration to those devices again"),
            Entry<&Obms::PackDeleteAddressBooks>("Deletes contacts of an outdoor station", "param"),
            Entry<&Obms::PacketAlarmHostZoneSnapShot, &Obms::ParseAlarmHostZoneSnapShot>(
                "Has a snapshot taken of an alarm host's zone", "zoneId", "action"),
        });
}

}  // namespace catalogue
