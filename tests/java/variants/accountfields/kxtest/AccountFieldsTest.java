package kxtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertNull;

import orvane.str.diskarray.FibreInformationPermission;
import orvane.str.diskarray.KXSessionInfo;
import org.junit.Test;

/** Record classes that lack a field or leave an array unmade. */
public class AccountFieldsTest extends BridgeTest {
    @Test
    public void missingNestedFieldReports2817() {
        assertEquals(2817, code(() -> jni.KX_GetAccountOption("u", new KXSessionInfo())));
        assertEquals(1, FakePernix.calls("KX_GetAccountOption"));
    }

    @Test
    public void missingStringFieldInATableReports2817() {
        assertEquals(2817, code(() -> jni.KX_GetKXAccountRoleInformation("u", new KXSessionInfo())));
        assertEquals(2817, code(() -> jni.KX_GetKXAuditLogInformation("u", new KXSessionInfo())));
    }

    @Test
    public void sessionWithoutTokenArrayIsStillReturned() throws Exception {
        KXSessionInfo s = jni.KX_LoginKXAccount("u", null);
        assertNotNull(s);
        assertNull(s.session_id);
    }

    @Test
    public void importedElementsThatCannotBeBuiltStayNull() throws Exception {
        FakePernix.willWriteInt("KX_FibreInfoPermissionImport", 4, 3);
        FibreInformationPermission[] got = jni.KX_FibreInfoPermissionImport("u", "/p", 0, 0);
        assertEquals(3, got.length);
        assertNull(got[0]);
        assertNull(got[2]);
    }
}
