package kxtest;

import static org.junit.Assert.*;

import orvane.str.diskarray.*;
import org.junit.Test;

/** Record classes that lack a field or leave an array unmade. */
public class AccountFieldsTest extends BridgeTest {
    @Test
    public void resultsLackingAFieldReport2817() {
        // a nested record, an element of a table of roles, an element inside a nested record
        assertEquals(2817, code(() -> jni.KX_GetAccountOption("u", new KXSessionInfo())));
        assertEquals(2817, code(() -> jni.KX_GetKXAccountRoleInformation("u", new KXSessionInfo())));
        assertEquals(2817, code(() -> jni.KX_GetKXAuditLogInformation("u", new KXSessionInfo())));
        assertEquals(3, FakePernix.log().length);
    }

    @Test
    public void importedElementsThatCannotBeBuiltStayNull() {
        FakePernix.willWriteInt("KX_FibreInfoPermissionImport", 4, 3);
        FibreInformationPermission.throwing = false;
        FibreInformationPermission.failAt = FibreInformationPermission.made + 1;  // no bitmap from now on
        try {
            assertArrayEquals(new FibreInformationPermission[3], jni.KX_FibreInfoPermissionImport("u", "/p", 0, 0));
        } finally {
            FibreInformationPermission.failAt = Integer.MAX_VALUE;
        }
    }
}
